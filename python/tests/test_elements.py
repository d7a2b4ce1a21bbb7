"""Models and their elements, as the tool's dump has them."""

import enum
import json
import subprocess

import numpy as np
import pytest

import varorobotmodel as vr

ROBOT_FILES = ["humanoid.xml", "helvo_arm.xml", "minimal.xml", "rover.xml", "quadruped.urdf", "mobile_arm.urdf"]


def name_of(element):
    return element.name if element is not None else None


def matrix(numbers):
    return np.array(numbers, dtype=np.float32).reshape(4, 4)


def words(member: enum.Enum):
    return member.name.replace("_", "").lower()


def camel(attribute):
    """As the dump writes what Python calls so."""
    first, *others = attribute.split("_")
    return first + "".join(map(str.title, others))


def plain(value):
    if isinstance(value, enum.Enum):
        return value.name.capitalize()
    if isinstance(value, tuple):
        return [plain(each) for each in value]
    if isinstance(value, float):
        return None if np.isinf(value) else np.float32(value)
    return getattr(value, "name", value)


def as_single(value):
    if isinstance(value, list):
        return [as_single(each) for each in value]
    return np.float32(value) if isinstance(value, float) else value


@pytest.fixture(params=ROBOT_FILES)
def dumped(request, robots, tool):
    path = robots / request.param
    dump = json.loads(subprocess.run([tool, "dump", path], capture_output=True, check=True).stdout)
    return vr.load(path), dump


def test_structure_is_what_is_dumped(dumped):
    model, dump = dumped
    assert (model.name, model.pretty_name, model.version) == (dump["name"], dump["prettyName"], dump["version"])
    assert model.root_link.name == dump["rootLink"]
    assert (len(model.links), len(model.joints)) == (len(dump["links"]), len(dump["joints"]))
    for link, expected in zip(model.links, dump["links"]):
        assert link.name == expected["name"]
        assert words(link.type) == expected["type"]
        assert name_of(link.parent_joint) == expected["parentJoint"]
        assert link.child_joints.names == expected["childrenJoints"]
        assert link.friction_material == expected["frictionMaterial"]
        assert np.float32(link.mass.mass) == np.float32(expected["mass"]["mass"])
        assert (np.float32(link.mass.center_of_mass) == np.float32(expected["mass"]["com"])).all()
        assert (np.float32(link.mass.inertia).ravel() == np.float32(expected["mass"]["inertia"])).all()
        assert link.mesh_path == (expected["visual"] or {"meshPath": ""})["meshPath"]
        assert (link.frame.local_pose == matrix(expected["localPosition"])).all()
        assert (np.float32(link.frame.global_pose) == matrix(expected["globalPosition"])).all()
    for joint, expected in zip(model.joints, dump["joints"]):
        assert (joint.name, joint.parent_link.name) == (expected["name"], expected["parentLink"])
        assert name_of(joint.child_link) == expected["childLink"]
        assert (joint.frame.local_pose == matrix(expected["localPosition"])).all()
    assert [[name_of(joint) for joint in pair.joints] for pair in model.joint_symmetries] == [
        pair["joints"] for pair in dump["jointSymmetries"]
    ]
    assert [[group.name, [name_of(joint) for joint in group.joints]] for group in model.joint_groups] == [
        [group["name"], group["joints"]] for group in dump["jointGroups"]
    ]
    assert [
        [group.name, name_of(group.parent), [name_of(actuator) for actuator in group.actuators]]
        for group in model.actuator_groups
    ] == [[group["name"], group["parent"], group["actuators"]] for group in dump["actuatorGroups"]]


def test_what_has_no_elements_is_what_is_dumped(dumped):
    model, dump = dumped
    lines = model.text.splitlines()
    facts = "name type joint actuator reduction interfaces state_interfaces".split()
    sources = {"TRANSMISSION": "transmission", "ROS2_CONTROL": "ros2Control"}
    assert [
        {**{camel(fact): plain(getattr(stated, fact)) for fact in facts}, "source": sources[stated.source.name]}
        for stated in model.transmissions
    ] == [{**each, "reduction": np.float32(each["reduction"])} for each in dump["transmissions"]]
    assert [
        {"owner": words(kept.owner), "name": kept.owner_name, "within": kept.within, "text": kept.text}
        for kept in model.extensions
    ] == dump["extensions"]
    for kept in model.extensions:
        assert lines[kept.place.line - 1][kept.place.column - 1 :].startswith(kept.text.splitlines()[0])
    for stated in model.transmissions:
        assert stated.name in model.transmissions and lines[stated.place.line - 1][stated.place.column - 1] == "<"


# What not every device has.
ATTRIBUTES = """dcm_keys dcm_state_keys dcm_command_keys start_value min_value max_value max_speed max_torque max_velocity
    controlled_joint reflected_symmetric reflected_symmetric_reversed reflection_forced controlled_joint_and_ratios
    shortname groups color width height""".split()


@pytest.mark.parametrize("family", ["actuator", "sensor"])
def test_devices_are_what_is_dumped(dumped, family):
    model, dump = dumped
    devices = getattr(model, family + "s")
    assert len(devices) == len(dump[family + "s"])
    for device, expected in zip(devices, dump[family + "s"]):
        common = (device.name, device.buffer_size, device.frame.name)
        assert common == (expected["name"], expected["bufferSize"], expected["frame"])
        assert type(device).__name__ == expected["type"] + family.capitalize()
        assert words(device.type) == expected["type"].lower()
        for attribute in ATTRIBUTES:
            key = camel(attribute)
            assert hasattr(device, attribute) == (key in expected), (device, attribute)
            if key in expected:
                found, wanted = plain(getattr(device, attribute)), as_single(expected[key])
                assert found == wanted or (found is None and key.startswith(("min", "max"))), (device, attribute)


def test_sequences_find_by_name(humanoid):
    joints = humanoid.joints
    elbow = humanoid.joint("LElbowBend")
    assert joints["LElbowBend"] == elbow and "LElbowBend" in joints and elbow in joints
    assert joints.index(elbow) == joints.names.index("LElbowBend")
    assert isinstance(joints[1:3], vr.Elements) and joints[-1] == joints[len(joints) - 1]
    assert joints.get("Nothing") is None and "Nothing" not in joints and 7 not in joints
    for look_up in (humanoid.joint, joints.__getitem__):
        with pytest.raises(KeyError) as caught:
            look_up("LElbowBond")
        assert caught.value.name == "LElbowBond"
        assert str(caught.value).endswith('"LElbowBond". Did you mean "LElbowBend"?')
    assert humanoid.camera_sensor("FaceCamera") in humanoid.camera_sensors
    with pytest.raises(vr.UnknownNameError):
        humanoid.sonar_sensor("FaceCamera")


def test_elements_are_equal_when_they_are_the_same(humanoid, robots):
    other = vr.load(robots / "humanoid.xml")
    elbow = humanoid.joint("LElbowBend")
    assert elbow == elbow.child_link.parent_joint and hash(elbow) == hash(elbow.child_link.parent_joint)
    assert elbow != other.joint("LElbowBend") and elbow != elbow.child_link and elbow != "LElbowBend"
    assert len({*humanoid.joints, *humanoid.joints}) == len(humanoid.joints)
    assert elbow.model == humanoid


def test_values_say_what_the_description_says(humanoid, robots):
    elbow = humanoid.joint("LElbowBend")
    assert elbow.type is vr.JointType.REVOLUTE and elbow.moves and elbow.has_motor
    assert elbow.limits.lower < elbow.limits.upper
    partner = elbow.symmetry.partner(elbow)
    assert partner.name == "RElbowBend" and elbow in elbow.groups[0].joints
    assert "<joint" in humanoid.text.splitlines()[elbow.place.line - 1] and 'name="LElbowBend"' in str(elbow.place.path)
    assert set(humanoid.postures["Crouch"]) <= {*humanoid.joints.names, *humanoid.actuators.names}
    arm = vr.load(robots / "mobile_arm.urdf")
    shapes = {type(visual.geometry) for link in arm.links for visual in link.visuals}
    assert {vr.Box, vr.Cylinder} <= shapes
    assert any(visual.material and visual.material.rgba for link in arm.links for visual in link.visuals)
    assert any(joint.mimic for joint in arm.joints)
    settings = [sensor.settings for sensor in arm.sensors if sensor.settings]
    assert any(each.camera and each.camera.horizontal_field_of_view > 0 for each in settings)
    assert vr.friction_coefficient("rubber", "unknown stuff") is None


def test_representations_name_what_they_stand_for(humanoid):
    assert repr(humanoid).startswith(f"<Model '{humanoid.name}': {len(humanoid.links)} links")
    for element in [*humanoid.links, *humanoid.joints, *humanoid.actuators, *humanoid.sensors, *humanoid.joint_groups]:
        assert type(element).__name__ in repr(element) and repr(element.name) in repr(element)
    assert repr(humanoid.joint_symmetries[0]) and repr(humanoid.root_link.frame) == "<Frame 'PelvisLink': root>"


def test_all_classes_are_in_the_package():
    from varorobotmodel import _core

    for module in (_core, _core.devices):
        for name, thing in vars(module).items():
            assert not isinstance(thing, type) or getattr(vr, name) is thing


def test_everything_is_documented():
    for name in (name for name in dir(vr) if not name.startswith("_")):
        thing = getattr(vr, name)
        assert thing.__doc__, name
        is_class = isinstance(thing, type) and not issubclass(thing, enum.Enum)
        for member, value in vars(thing).items() if is_class else ():
            assert member.startswith("_") or value.__doc__, f"{name}.{member}"
