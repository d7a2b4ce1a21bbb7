"""Moving a model."""

import copy

import numpy as np
import pytest

import varorobotmodel as vr


@pytest.fixture
def kinematics(humanoid):
    return vr.Kinematics(humanoid)


def test_all_ways_to_state_values_are_one(kinematics):
    q = vr.Configuration(kinematics, "Crouch")
    for same in (q.values, list(q.values), q.as_dict(), "Crouch", q.copy()):
        assert (kinematics.poses(same) == kinematics.poses(q)).all()
    assert vr.Configuration(kinematics, q.values) == q
    assert (np.asarray(q) == q.values).all() and np.asarray(q, dtype=np.float32).dtype == np.float32
    assert q.as_dict().keys() == set(kinematics.variables.names)


def test_values_are_set_by_name_and_index(kinematics):
    q = vr.Configuration(kinematics)
    index = kinematics.variable_of("LElbowBend")
    q["LElbowBend"] = -0.5
    assert q[index] == q["LElbowBend"] == -0.5 and q[index - len(q)] == -0.5
    q[index] = -0.25
    q.update({"LElbowBend": -0.75, "NeckNod": 0.1})
    assert (q["LElbowBend"], q["NeckNod"]) == (-0.75, 0.1)
    other = copy.deepcopy(q)
    other["LElbowBend"] = -9
    assert other != q and other.distance_to_limits("LElbowBend") < 0
    with pytest.raises(ValueError, match="LElbowBend"):
        other.check_limits()
    other.clamp_to_limits()
    other.check_limits()
    q.values = np.zeros(len(q))
    q.set_posture("Crouch")
    assert q == vr.Configuration(kinematics, "Crouch") and "LElbowBend" in repr(q)


def test_what_means_nothing_is_refused_and_changes_nothing(kinematics, robots):
    q = vr.Configuration(kinematics, "Crouch")
    before = q.copy()
    for change, error in [
        (lambda: q.__setitem__("LElbowBond", 1.0), vr.UnknownNameError),
        (lambda: q["LElbowBond"], KeyError),
        (lambda: q.__setitem__("LElbowBend", float("nan")), ValueError),
        (lambda: q.__setitem__("LThumb1", 1.0), ValueError),
        (lambda: q.update({"LElbowBend": 1.0, "Nothing": 1.0}), KeyError),
        (lambda: q.update({"LElbowBend": "x"}), TypeError),
        (lambda: q.update({3: 1.0}), TypeError),
        (lambda: q.__getitem__(len(q)), IndexError),
        (lambda: q.__setitem__(-len(q) - 1, 0.0), IndexError),
        (lambda: setattr(q, "values", [1.0]), ValueError),
        (lambda: setattr(q, "values", np.zeros((len(q), 1))), ValueError),
        (lambda: setattr(q, "values", "abc"), TypeError),
        (lambda: q.set_posture("Crowch"), KeyError),
        (lambda: kinematics.poses(vr.Configuration(vr.Kinematics(vr.load(robots / "humanoid.xml")))), ValueError),
        (lambda: kinematics.pose(q, "NoLink"), KeyError),
        (lambda: kinematics.pose(q, 3), TypeError),
        (lambda: kinematics.pose(q, vr.load(robots / "minimal.xml").root_link), ValueError),
        (lambda: kinematics.mass_properties(q, "NeckNodLink"), TypeError),
    ]:
        with pytest.raises(error):
            change()
        assert q == before
    with pytest.raises(KeyError, match='Did you mean "Crouch"'):
        q.set_posture("Crowch")


def test_poses_and_frames_agree(kinematics, humanoid):
    q = "Crouch"
    poses = kinematics.poses(q)
    assert poses.shape == (len(humanoid.links), 4, 4) and poses.dtype == np.float64
    for link in humanoid.links:
        assert np.allclose(poses[kinematics.link_index(link)], kinematics.pose(q, link), rtol=0, atol=1e-12)
    wrist, elbow = humanoid.link("LWristTwistLink"), humanoid.joint("LElbowBend")
    relative = kinematics.pose(q, wrist.frame, relative_to=elbow)
    assert np.allclose(kinematics.pose(q, elbow) @ relative, kinematics.pose(q, "LWristTwistLink"), atol=1e-12)
    camera = humanoid.camera_sensor("FaceCamera")
    assert (kinematics.pose(q, camera) == kinematics.pose(q, "FaceCamera")).all()
    assert kinematics.frame("FaceCamera") == camera.frame


def test_jacobians_are_what_differences_of_poses_say(kinematics, humanoid):
    q, frame, step = vr.Configuration(kinematics, "Crouch"), "LWristTwistLink", 1e-6
    jacobian, center = kinematics.jacobian(q, frame), kinematics.center_of_mass_jacobian(q)
    assert jacobian.shape == (6, len(q)) and center.shape == (3, len(q))
    total = kinematics.mass_properties(q)
    for index in range(len(q)):
        moved = q.copy()
        moved[index] += step
        velocity = (kinematics.pose(moved, frame) - kinematics.pose(q, frame))[:3, 3] / step
        shift = (kinematics.mass_properties(moved).center_of_mass - total.center_of_mass) / step
        assert np.allclose(jacobian[:3, index], velocity, atol=1e-5) and np.allclose(center[:, index], shift, atol=1e-5)
    turned = kinematics.jacobian(q, frame, axes=frame)
    assert np.allclose(kinematics.pose(q, frame)[:3, :3] @ turned[3:], jacobian[3:], atol=1e-6)
    assert np.isclose(total.mass, sum(link.mass.mass for link in humanoid.links)) and total.inertia.shape == (3, 3)
    assert kinematics.mass_properties(q, humanoid.link("NeckTurnLink")).mass < total.mass


def test_arrays_are_the_callers_own(kinematics, humanoid):
    link = humanoid.root_link
    for get in (lambda: link.frame.local_pose, lambda: link.mass.inertia, lambda: kinematics.poses(None)):
        array = get()
        array += 1
        assert not (get() == array).any()
