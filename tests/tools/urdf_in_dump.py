#!/usr/bin/env python3
"""urdf_in_dump.py VARO_ROBOT FOLDER [VARIABLE]: is all that URDF files say in what `varo-robot dump` prints of them?

Those of the folder or, where the environment has the variable, of the one that it names; a file will do, too.
Reads the files with Python's XML parser and by what URDF and SDF say, not by what our reader does. Prints a line for
each statement of a file that the dump lacks or has otherwise; the exit status is 1 when there is one, and 77 when there
is no file.
"""
import collections
import json
import math
import os
import pathlib
import subprocess
import sys
import xml.etree.ElementTree as ElementTree
import xml.parsers.expat

from sensor_statements import DEGREES, NOISE, NOISY, SETTINGS, noises_of

MOVING = ("revolute", "continuous", "prismatic")
SOLIDS = {"box": ("size",), "cylinder": ("radius", "length"), "capsule": ("radius", "length"), "sphere": ("radius",)}
# The attributes and the elements that URDF defines in each element.
DEFINED = {
    "link": (("name",), ("inertial", "visual", "collision")),
    "inertial": ((), ("origin", "mass", "inertia")),
    "visual": (("name",), ("origin", "geometry", "material")),
    "collision": (("name",), ("origin", "geometry")),
    "geometry": ((), ("mesh", *SOLIDS)),
    "material": (("name",), ("color", "texture")),
    "joint": (("name", "type"), ("parent", "child", "origin", "axis", "limit", "dynamics", "mimic", "calibration",
                                 "safety_controller")),
    **{name: (attributes, ()) for name, attributes in {
        **SOLIDS, "mesh": ("filename", "scale"), "color": ("rgba",), "texture": ("filename",), "origin": ("xyz", "rpy"),
        "mass": ("value",), "inertia": ("ixx", "ixy", "ixz", "iyy", "iyz", "izz"), "parent": ("link",),
        "child": ("link",), "axis": ("xyz",), "limit": ("lower", "upper", "effort", "velocity"),
        "dynamics": ("damping", "friction"), "mimic": ("joint", "multiplier", "offset"),
        "calibration": ("rising", "falling"),
        "safety_controller": ("soft_lower_limit", "soft_upper_limit", "k_position", "k_velocity")}.items()},
}


def parse(data):
    """The root element; prefixes of namespaces, which robots often leave undeclared, stay in the names."""
    builder = ElementTree.TreeBuilder()
    parser = xml.parsers.expat.ParserCreate()
    parser.StartElementHandler = builder.start
    parser.EndElementHandler = builder.end
    parser.CharacterDataHandler = builder.data
    parser.Parse(data, True)
    return builder.close()


def statement(element):
    """What an element says but for the elements in it."""
    return element.tag, tuple(sorted(element.attrib.items())), "" if len(element) else (element.text or "").strip()


def kept_element(text):
    """An element with what the dump keeps as text, be it an element or an attribute."""
    return parse(f"<kept>{text}</kept>" if text.startswith("<") else f"<kept {text}/>")


def numbers(text):
    return [float(word) for word in text.split()]


def bounded(value):
    """As JSON holds a limit: null for none."""
    return value if abs(value) < 1e30 else None


def agree(expected, actual):
    if isinstance(expected, (list, tuple)):
        return isinstance(actual, list) and len(expected) == len(actual) and all(map(agree, expected, actual))
    if isinstance(expected, dict):
        return isinstance(actual, dict) and all(agree(value, actual.get(key)) for key, value in expected.items())
    if isinstance(expected, bool):
        return actual is expected
    if isinstance(expected, float):
        return isinstance(actual, (int, float)) and abs(actual - expected) <= 2e-6 * max(1.0, abs(expected))
    return (expected or None) == (actual or None)  # no text, or an empty one


def pose(origin):
    x, y, z = numbers(origin.get("xyz", "0 0 0")) if origin is not None else (0.0, 0.0, 0.0)
    roll, pitch, yaw = numbers(origin.get("rpy", "0 0 0")) if origin is not None else (0.0, 0.0, 0.0)
    cr, sr, cp, sp, cy, sy = (f(a) for a in (roll, pitch, yaw) for f in (math.cos, math.sin))
    return [cy * cp, cy * sp * sr - sy * cr, cy * sp * cr + sy * sr, x,
            sy * cp, sy * sp * sr + cy * cr, sy * sp * cr - cy * sr, y,
            -sp, cp * sr, cp * cr, z, 0.0, 0.0, 0.0, 1.0]


def product(first, second):
    """Of matrices, row by row."""
    return [sum(first[4 * i + k] * second[4 * k + j] for k in range(4)) for i in range(4) for j in range(4)]


def inertia(inertial):
    """About the centre of mass, turned into the axes of the link."""
    stated = inertial.find("inertia")
    ixx, ixy, ixz, iyy, iyz, izz = (attribute(stated, "i" + axes) for axes in ("xx", "xy", "xz", "yy", "yz", "zz"))
    matrix = [[ixx, ixy, ixz], [ixy, iyy, iyz], [ixz, iyz, izz]]
    turn = [pose(inertial.find("origin"))[row:row + 3] for row in (0, 4, 8)]
    return [sum(turn[i][k] * matrix[k][m] * turn[j][m] for k in range(3) for m in range(3))
            for i in range(3) for j in range(3)]


def geometry(element):
    solid = element.find("geometry")[0]
    if solid.tag == "mesh":
        return {"type": "mesh", "uri": solid.get("filename"), "scale": numbers(solid.get("scale", "1 1 1"))}
    values = {name: numbers(solid.get(name)) for name in SOLIDS[solid.tag]}
    return {"type": solid.tag, **{name: value if name == "size" else value[0] for name, value in values.items()}}


def attribute(element, name, default=0.0):
    return float(element.get(name, default)) if element is not None else default


def is_defined(material):
    return material.find("color") is not None or material.find("texture") is not None


class Comparison:
    def __init__(self, file, dump):
        self.robot = parse(file.read_bytes())
        self.dump = dump
        self.lacks = []
        self.kept = collections.Counter(
            statement(element) for extension in dump.get("extensions", [])
            for element in kept_element(extension["text"]).iter())
        self.links = {link["name"]: link for link in dump["links"]}
        self.materials = {}
        for material in [*self.robot.findall("material"), *self.robot.iterfind("link/visual/material")]:
            if material.get("name") and is_defined(material):
                self.materials.setdefault(material.get("name"), material)

    def expect(self, what, expected, actual):
        if not agree(expected, actual):
            self.lacks.append(f"{what}: {json.dumps(expected)} in the file, {json.dumps(actual)} in the dump")

    def expect_kept(self, what, *elements):
        """That the dump has these elements, for which there is no place in a record, as text."""
        for tag, attributes, text in map(statement, elements):
            self.kept[tag, attributes, text] -= 1  # what is stated twice is there twice
            if self.kept[tag, attributes, text] < 0:
                self.lacks.append(f"{what}: <{tag}> {dict(attributes)} {text!r} is lost")

    def run(self):
        links = {link.get("descriptionName"): link for link in self.dump["links"]}
        joints = {joint["name"]: joint for joint in self.dump["joints"]}
        for element in self.robot:
            name = element.get("name")
            if element.tag in ("link", "joint") and name not in (links if element.tag == "link" else joints):
                self.lacks.append(f"there is no {element.tag} {name}")
            if element.tag == "link":
                self.link(name, element, links.get(name) or {})
            elif element.tag == "joint":
                self.joint(name, element, joints.get(name) or {})
            elif element.tag == "transmission":
                self.transmission(name, element)
            elif element.tag == "ros2_control":
                self.control(name, element)
            elif element.tag not in ("sensor", "material", "gazebo"):
                self.expect_kept(element.tag, *element.iter())
        for extension in self.robot.iterfind("gazebo"):
            for child in extension:
                if child.tag.split(":")[0] != "sensor":
                    self.expect_kept(f"gazebo of {extension.get('reference')}", *child.iter())
        self.attributes("robot", self.robot, "name", "version")
        self.sensors()
        return self.lacks

    def link(self, name, link, dumped):
        for kind in ("visual", "collision"):
            shapes = link.findall(kind)
            self.expect(f"{name}: number of {kind}s", float(len(shapes)), len(dumped.get(kind + "s", [])))
            for number, (shape, has) in enumerate(zip(shapes, dumped.get(kind + "s", []))):
                says = {"name": shape.get("name"), "pose": pose(shape.find("origin")), "geometry": geometry(shape)}
                if kind == "visual":
                    says["material"] = self.material(shape.find("material"))
                for key, value in says.items():
                    self.expect(f"{name}: {key} of {kind} {number}", value, has.get(key))
        inertial = link.find("inertial")
        if inertial is not None and attribute(inertial.find("mass"), "value") > 0:
            com = pose(inertial.find("origin"))[3:12:4]
            says = {"mass": attribute(inertial.find("mass"), "value"), "com": com}
            self.expect(f"{name}: inertial", says, dumped.get("mass"))
            self.expect(f"{name}: inertia", inertia(inertial), (dumped.get("mass") or {}).get("inertia"))
        self.beyond(name, link)

    def beyond(self, what, element):
        """What an element holds that URDF does not define there is in the dump as text."""
        attributes, children = DEFINED[element.tag]
        self.attributes(what, element, *attributes)
        for child in element:
            if child.tag in children:
                self.beyond(what, child)
            else:
                self.expect_kept(what, *child.iter())

    def attributes(self, what, element, *known):
        """All attributes but the known ones are there as text."""
        self.expect_kept(f"{what}: attribute of <{element.tag}>", *(
            ElementTree.Element("kept", {key: value}) for key, value in element.attrib.items() if key not in known))

    def material(self, material):
        if material is None:
            return None
        source = material if is_defined(material) else self.materials.get(material.get("name"), material)
        color, texture = source.find("color"), source.find("texture")
        return {"name": material.get("name"), "rgba": None if color is None else numbers(color.get("rgba")),
                "texture": None if texture is None else texture.get("filename")}

    def joint(self, name, joint, dumped):
        kind, limit, mimic = joint.get("type"), joint.find("limit"), joint.find("mimic")
        safety, calibration = joint.find("safety_controller"), joint.find("calibration")
        says = {"type": kind, "effort": bounded(attribute(limit, "effort")),
                "velocity": bounded(attribute(limit, "velocity")),
                "damping": attribute(joint.find("dynamics"), "damping"),
                "friction": attribute(joint.find("dynamics"), "friction"),
                "mimic": mimic if mimic is None else {
                    "joint": mimic.get("joint"), "multiplier": attribute(mimic, "multiplier", 1.0),
                    "offset": attribute(mimic, "offset")},
                "safety": safety if safety is None else {
                    "lower": attribute(safety, "soft_lower_limit"), "upper": attribute(safety, "soft_upper_limit"),
                    "positionGain": attribute(safety, "k_position"),
                    "velocityGain": attribute(safety, "k_velocity")},
                "calibration": calibration if calibration is None else {
                    key: float(calibration.get(key)) if calibration.get(key) else None
                    for key in ("rising", "falling")}}
        if kind in MOVING:
            says["limits"] = {bound: None if kind == "continuous" else bounded(attribute(limit, bound))
                              for bound in ("lower", "upper")}
        for key, value in says.items():
            self.expect(f"{name}: {key}", value, dumped.get(key, "nothing"))
        self.expect(f"{name}: moves", kind in MOVING, dumped.get("moves"))
        for end in ("parent", "child"):
            self.expect(f"{name}: {end}", joint.find(end).get("link"),
                        self.links.get(dumped.get(end + "Link"), {}).get("descriptionName"))
        self.place(name, joint, dumped)
        self.beyond(name, joint)

    def place(self, name, joint, dumped):
        """The frame of a joint that moves has the axis as its z; that of the link which it moves stands as stated."""
        stated = pose(joint.find("origin"))
        child = self.links.get(dumped.get("childLink"))
        if child is None:
            return
        self.expect(f"{name}: place of its link", stated, product(dumped["localPosition"], child["localPosition"]))
        if joint.get("type") in MOVING:
            axis = numbers(joint.find("axis").get("xyz")) if joint.find("axis") is not None else [1.0, 0.0, 0.0]
            direction = [sum(a * b for a, b in zip(stated[row:row + 3], axis)) / math.hypot(*axis) for row in (0, 4, 8)]
            self.expect(f"{name}: axis", direction, dumped["localPosition"][2:12:4])
            self.expect(f"{name}: origin", stated[3:12:4], dumped["localPosition"][3:12:4])

    def transmission(self, name, transmission):
        """Each of its joints has a record, with the actuator of the same rank; the rest is there as text."""
        joints, actuators, common = (transmission.findall(tag) for tag in ("joint", "actuator", "mechanicalReduction"))
        stated_type = transmission.find("type")
        has = [each for each in self.dump.get("transmissions", [])
               if each["name"] == name and each["source"] == "transmission"]
        self.expect(f"{name}: number of joints", float(len(joints)), len(has))
        known = set()
        for number, (joint, record) in enumerate(zip(joints, has)):
            ends = [joint, *actuators[:number + 1][-1:]]
            reductions = [*(each for end in ends[::-1] for each in end.findall("mechanicalReduction")), *common]
            interfaces = [each for end in ends for each in end.findall("hardwareInterface")]
            says = {"type": transmission.get("type") if stated_type is None else stated_type.text.strip(),
                    "joint": joint.get("name"), "actuator": ends[1].get("name") if len(ends) > 1 else None,
                    "reduction": float(reductions[0].text) if reductions else 1.0,
                    "interfaces": list(dict.fromkeys(each.text.strip() for each in interfaces))}
            for key, value in says.items():
                self.expect(f"{name}: {key} of joint {number}", value, record[key])
            known.update([transmission, stated_type, *ends, *reductions[:1], *interfaces])
        self.expect_kept(name, *(element for element in transmission.iter() if element not in known))

    def control(self, name, control):
        for joint in control.findall("joint"):
            has = [each for each in self.dump.get("transmissions", [])
                   if each["source"] != "transmission" and each["name"] == name and each["joint"] == joint.get("name")]
            stated = [each.get("name") for each in joint.findall("command_interface")]
            self.expect(f"{name}: interfaces of {joint.get('name')}", stated, has[0]["interfaces"] if has else None)
            self.expect(f"{name}: states of {joint.get('name')}", [each.get("name") for each in
                        joint.findall("state_interface")], has[0]["stateInterfaces"] if has else None)
        self.expect_kept(name, *control.iter())

    def sensors(self):
        carriers = {element.get("name") for tag in ("link", "joint") for element in self.robot.findall(tag)}
        named = {sensor["name"]: sensor for sensor in self.dump["sensors"]}
        count = {}
        for owner in [self.robot, *self.robot.findall("gazebo")]:
            for sensor in owner:
                if sensor.tag.split(":")[0] != "sensor":
                    continue
                parent = sensor.find("parent") if owner is self.robot else None
                carrier = owner.get("reference") if parent is None else parent.get("link") or parent.get("joint")
                name = sensor.get("name") or carrier
                if carrier not in carriers:  # there is nothing that could carry it in a model
                    self.expect_kept(name, *sensor.iter())
                    continue
                count[name] = count.get(name, 0) + 1
                name += f"_{count[name]}" if count[name] > 1 else ""
                has = named.get(name) or named.get(name + "/Gyrometer")
                if has is None:
                    self.lacks.append(f"there is no sensor {name}")
                else:
                    self.sensor(name, sensor, has.get("settings") or {})

    def sensor(self, name, sensor, settings):
        known = set()  # elements whose text the dump has, and elements with attributes that it has

        def state(keys, element, attribute, text, unit=1.0):
            has = settings
            for key in keys:
                has = (has or {}).get(key)
            is_text = keys[-1] in ("format", "name")
            self.expect(f"{name}: {'.'.join(keys)}", text.strip() if is_text else bounded(float(text) * unit), has)
            known.add((element, attribute))

        for keys, paths in SETTINGS.items():
            for path in paths:
                path, _, key = path.partition("@")
                element = sensor.find(path.rstrip("*") or ".")
                if element is not None and (not key or element.get(key)):
                    state(keys, element, key, element.get(key) if key else element.text,
                          DEGREES if path.endswith("*") else 1.0)
                    break
        if sensor.find("imageSize") is not None:
            for key, text in zip(("width", "height"), sensor.find("imageSize").text.split()):
                state(("camera", key), sensor.find("imageSize"), "", text)
        if sensor.find("rangeCount") is not None:  # of a sweep, where the dump has values for each ray
            rays = float(sensor.findtext("rayCount", sensor.findtext("rangeCount")))
            state(("horizontalScan", "resolution"), sensor.find("rangeCount"), "", sensor.findtext("rangeCount"),
                  1 / rays)
        self.noises(name, sensor, settings.get("noises") or [], known)
        self.rest(name, sensor, known)

    def noises(self, name, sensor, noises, known):
        stated = []
        for within, noise in (each for part in sensor if part.tag in NOISY for each in noises_of(part)):
            parts = [each for each in noise if not within and each.tag in ("accel", "rate")]  # the older form
            common = self.noise(noise, known)
            if not parts or set(common) - {"type"}:
                stated.append({"quantity": "/".join(within), **common})
            stated += [{"quantity": part.tag, **{key: common[key] for key in common if key == "type"},
                        **self.noise(part, known)} for part in parts]
        self.expect(f"{name}: number of noises", float(len(stated)), len(noises))
        for says in stated:
            has = next((each for each in noises if each["quantity"] == says["quantity"]), {})
            self.expect(f"{name}: noise of {says['quantity'] or 'all'}", says, has)

    @staticmethod
    def noise(element, known):
        """What a noise states; `known` learns of the statements."""
        says = {}
        for tag, key in NOISE.items():
            child = element.find(tag)
            if child is not None or element.get(tag):
                text = (element.get(tag) if child is None else child.text).strip()
                says[key] = text if tag == "type" else float(text)
                known.add((element, tag) if child is None else (child, ""))
        known.add((element, ""))
        return says

    def rest(self, name, sensor, known):
        """What a sensor says beyond settings is in the dump as text: whole elements, or attributes of the others."""
        parts = [part for part in sensor if part.tag not in ("pose", "origin", "parent")]
        for child in (child for part in parts for child in part.iter()):
            is_whole = (child, "") not in known and self.kept[statement(child)] > 0
            is_lost = (child, "") not in known and len(child) == 0 and ((child.text or "").strip() or not child.attrib)
            if is_whole or is_lost:
                self.expect_kept(name, child)
                continue
            for key, value in child.attrib.items():
                if (child, key) not in known:
                    self.expect_kept(f"{name}: attribute of <{child.tag}>", ElementTree.Element("kept", {key: value}))


def main(tool, folder, variable=""):
    path = pathlib.Path(os.environ.get(variable, folder))
    files = [path] if path.is_file() else sorted(path.glob("*.urdf"))
    bad = 0
    for file in files:
        printed = subprocess.run([tool, "dump", file], stdout=subprocess.PIPE, check=True).stdout
        lacks = Comparison(file, json.loads(printed)).run()
        bad += len(lacks)
        for line in lacks:
            print(f"{file.name}: {line}")
    print(f"{len(files)} files, {bad} statements that the dump lacks")
    return 77 if not files else 1 if bad else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
