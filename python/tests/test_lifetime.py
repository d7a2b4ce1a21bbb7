"""Elements outlive the variables that their model was in."""

import gc
import os
import threading
import time

import pytest

import varorobotmodel as vr


def test_whatever_is_held_of_a_model_keeps_it(robots):
    model = vr.load(robots / "humanoid.xml")
    kinematics = vr.Kinematics(model)
    held = {
        "joint": model.joint("LElbowBend").child_link.parent_joint,
        "frame": model.root_link.frame,
        "sensor": model.camera_sensor("FaceCamera"),
        "actuator": model.angle_actuator("LElbowBend").reflected_symmetric,
        "group": model.joint_groups[0],
        "pair": model.joint_symmetries[0],
        "configuration": vr.Configuration(kinematics, "Crouch"),
    }
    expected = {key: repr(value) for key, value in held.items()}
    del model, kinematics
    gc.collect()
    trash = [vr.load(robots / "humanoid.xml") for _ in range(3)]  # would take the place of what is freed
    del trash
    gc.collect()
    assert {key: repr(value) for key, value in held.items()} == expected
    assert held["joint"].parent_link.child_joints["LElbowBend"] == held["joint"]
    assert len(held["configuration"].kinematics.poses(held["configuration"])) == len(held["frame"].model.links)


def resident_kib():
    with open("/proc/self/status", encoding="ascii") as status:
        return next(int(line.split()[1]) for line in status if line.startswith("VmRSS"))


def test_models_end_with_the_last_that_is_held_of_them(robots):
    text = (robots / "humanoid.xml").read_bytes()

    def walk():
        model = vr.loads(text)
        links = [joint.child_link.parent_joint.parent_link for joint in model.joints if joint.child_link]
        vr.Kinematics(model).poses(None)
        return links[-1]

    gc.disable()  # nothing here is a cycle that would need collecting
    try:
        for _ in range(50):
            walk()
        before = resident_kib()
        for _ in range(200):
            walk()
        assert resident_kib() - before < 8 * 1024
    finally:
        gc.enable()


def test_what_cannot_be_made_is_refused():
    for made_by_models in (vr.Model, vr.Link, vr.Joint, vr.CameraSensor):
        with pytest.raises(TypeError):
            made_by_models()
        with pytest.raises(TypeError):
            made_by_models.__new__(made_by_models).name


def test_what_missed_its_init_is_refused():
    class Unfinished(vr.Configuration):
        def __init__(self):
            pass

    for use in (lambda: len(Unfinished()), lambda: vr.Kinematics.__new__(vr.Kinematics).variables):
        with pytest.raises(TypeError):
            use()


def test_python_goes_on_while_a_file_is_read(tmp_path):
    """A thread waits within load for what another thread writes, which it can only do when the first one lets it."""
    fifo = tmp_path / "fifo.xml"
    os.mkfifo(fifo)
    loaded = []
    reader = threading.Thread(target=lambda: loaded.append(vr.load(fifo)), daemon=True)
    reader.start()
    fifo.write_text('<robotDescription name="piped"><root name="Base"/></robotDescription>')
    reader.join(30)
    assert [model.name for model in loaded] == ["piped"]


def test_python_goes_on_while_a_model_is_built():
    count = 20000
    joints = "".join(f'<joint name="j{i}" min="-1" max="1"/>' for i in range(count))
    chain = "".join(f'<jointRef name="j{i}"/>' for i in range(count))
    text = f"""<robotDescription name="long"><root name="Base"/>{joints}
        <chain name="c" parent="Base">{chain}</chain></robotDescription>"""
    loaded = []
    thread = threading.Thread(target=lambda: loaded.append(vr.loads(text)))
    switches = 0
    thread.start()
    while thread.is_alive():
        time.sleep(0.001)
        switches += 1
    assert len(loaded[0].links) == count + 1
    assert switches > 5
