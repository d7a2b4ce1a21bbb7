"""Plain data that belongs to its owner: it may be kept, compared and changed into other forms at will."""

from __future__ import annotations

import dataclasses
from dataclasses import dataclass
import os
import typing
from typing import Dict, List, Optional, Tuple, Union

import numpy as np
from numpy.typing import NDArray

from ._enums import ExtensionOwner, Severity, TransmissionSource

Array = NDArray[np.float64]
Path = Union[str, bytes, os.PathLike[str], os.PathLike[bytes]]


@dataclass(frozen=True)
class Place:
    """A place in the text of a description. As a text it reads ``file:line:column``."""

    file: str  #: as it was given to ``load``; "<string>" for a text
    line: int  #: from 1; 0 for what stands in no text
    column: int  #: from 1, in characters
    path: str = ""  #: of the element: /robotDescription/joint[@name="HeadYaw"]/placement

    def __str__(self) -> str:
        return f"{self.file}:{self.line}:{self.column}" if self.line else self.file


@dataclass(frozen=True)
class Finding:
    """Something worth saying about a description. As a text it is one line, as the tool prints it."""

    severity: Severity
    code: str  #: stable, for programs: lower-case words joined by hyphens
    place: Place
    message: str  #: one sentence that says what is wrong
    hint: str = ""  #: what to do about it; may be empty

    def __str__(self) -> str:
        return f"{self.place}: {self.severity}: {self.message} [{self.code}]"


class Limits(typing.NamedTuple):
    """Where a joint may stand, in rad (m for one that slides); infinite when unlimited."""

    lower: float
    upper: float


class Mimic(typing.NamedTuple):
    """That a joint follows another one: its value is multiplier * the other's value + offset."""

    joint: str  #: the name of the other
    multiplier: float
    offset: float  #: rad (m)


class Safety(typing.NamedTuple):
    """Bounds that a joint's controller keeps inside of its limits."""

    lower_limit: float  #: rad (m), where the controller begins to limit the position
    upper_limit: float  #: rad (m)
    position_gain: float  #: 1/s, from position to bounds of velocity
    velocity_gain: float  #: N*m*s/rad (N*s/m), from velocity to bounds of effort


class Calibration(typing.NamedTuple):
    """Positions (rad, m) at which a joint's reference switch changes; None when not stated."""

    rising: Optional[float]
    falling: Optional[float]


class JointVariable(typing.NamedTuple):
    """What one value of a ``Configuration`` stands for."""

    name: str  #: of the joint, wheel or coupled actuator
    min: float  #: rad (m); infinite when unlimited
    max: float  #: as ``min``
    slides: bool  #: whether the values are metres rather than radians


@dataclass(frozen=True, eq=False)
class MassProperties:
    """Mass, centre of mass and inertia: of a link in its own frame, of a moved robot in the root's."""

    mass: float  #: kg
    center_of_mass: Array  #: m, 3 values
    inertia: Array  #: kg*m^2, 3x3, about the centre of mass


class Mesh(typing.NamedTuple):
    """A solid that a file describes."""

    uri: str  #: of the file, as the description states it
    scale: Tuple[float, float, float]  #: factors along the mesh's x, y and z


class Box(typing.NamedTuple):
    """A box, centred at the origin of its frame."""

    size: Tuple[float, float, float]  #: m, along x, y and z


class Cylinder(typing.NamedTuple):
    """A cylinder about z, centred at the origin of its frame."""

    radius: float  #: m
    length: float  #: m


class Sphere(typing.NamedTuple):
    """A sphere, centred at the origin of its frame."""

    radius: float  #: m


class Capsule(typing.NamedTuple):
    """A cylinder about z with half a sphere at each end, centred at the origin of its frame."""

    radius: float  #: m
    length: float  #: m, between the centres of its caps


Geometry = Union[Mesh, Box, Cylinder, Sphere, Capsule]


class Material(typing.NamedTuple):
    """How a visual's surface looks."""

    name: str  #: may be empty
    rgba: Optional[Tuple[float, float, float, float]]  #: 0 to 1; None when the description states no colour
    texture: str  #: image file, as the description states it; empty for none


@dataclass(frozen=True, eq=False)
class Visual:
    """What is shown of a link, or a part of it."""

    name: str  #: may be empty
    pose: Array  #: 4x4, in the link's frame
    geometry: Geometry
    material: Optional[Material]


@dataclass(frozen=True, eq=False)
class Collision:
    """What a link collides with, or a part of it."""

    name: str  #: may be empty
    pose: Array  #: 4x4, in the link's frame
    geometry: Geometry


class NoiseSettings(typing.NamedTuple):
    """Random error of a sensor's values, in their unit."""

    quantity: str  #: what has the error, as "linear_acceleration/x"; empty for all values
    type: str  #: as stated, such as "gaussian"; may be empty
    mean: float
    standard_deviation: float  #: of each value
    bias_mean: float  #: mean of the error that stays the same for a run
    bias_standard_deviation: float  #: of that error, from run to run
    drift_standard_deviation: float  #: of the error that changes slowly within a run
    drift_time: float  #: s, in which that error changes; 0 when not stated
    precision: float  #: the steps in which values come; 0 when not stated


class CameraSettings(typing.NamedTuple):
    """How a camera is set; 0 for what is not stated."""

    name: str  #: of the camera within its sensor; may be empty
    horizontal_field_of_view: float  #: rad
    width: int  #: pixels
    height: int  #: pixels
    format: str  #: of its pictures, as stated, such as "R8G8B8"
    near_clip: float  #: m; nothing nearer is seen
    far_clip: float  #: m; nothing farther is seen; infinity when not stated


class ScanSettings(typing.NamedTuple):
    """One direction in which a scanner sweeps."""

    samples: int  #: rays of one sweep
    resolution: float  #: values given per ray
    minimum_angle: float  #: rad, about the z axis of the sensor's frame (vertically: up from its x-y plane)
    maximum_angle: float  #: rad


class RangeSettings(typing.NamedTuple):
    """How far a sensor of distance sees."""

    minimum: float  #: m
    maximum: float  #: m; infinity when unlimited or not stated
    resolution: float  #: m; 0 when not stated


class SensorSettings(typing.NamedTuple):
    """How a sensor is set; None for what is not stated."""

    update_rate: float  #: Hz; 0 when not stated
    camera: Optional[CameraSettings]
    horizontal_scan: Optional[ScanSettings]
    vertical_scan: Optional[ScanSettings]
    range: Optional[RangeSettings]
    noises: Tuple[NoiseSettings, ...]


class Transmission(typing.NamedTuple):
    """Which actuator drives which joint, and how."""

    name: str  #: of the transmission, or of the control system that states the joint
    type: str  #: as stated; may be empty
    joint: str  #: the name of the joint that is driven
    actuator: str  #: what drives it; may be empty
    reduction: float  #: turns of the actuator for one of the joint
    interfaces: Tuple[str, ...]  #: to command the joint, as stated, such as "position"
    state_interfaces: Tuple[str, ...]  #: to read the joint's state, where the text tells them apart
    source: TransmissionSource
    place: Place  #: where the description states it


class Extension(typing.NamedTuple):
    """What a description has for other programs, kept as it stands in its text: an element, or an attribute."""

    owner: ExtensionOwner  #: what kind of element it stands in
    owner_name: str  #: of the joint, sensor, or the joint that moves the link (or the root); empty for the robot
    within: str  #: the elements between the owner's and it, as "visual[2]/geometry"; empty for none
    text: str  #: the whole element or attribute, markup and all
    place: Place  #: where it stands


@dataclass
class MeshFolders:
    """Where files are looked for. Folders that do not exist do no harm."""

    description: Path = ""  #: the folder of the description; empty for a text that stands in none
    packages: Dict[str, Path] = dataclasses.field(default_factory=dict)  #: folders of packages, by the packages' names
    package_path: List[Path] = dataclasses.field(default_factory=list)  #: folders that are packages, or have some below them
    prefixes: List[Path] = dataclasses.field(default_factory=list)  #: folders that have packages in their folder "share"


class MeshFile(typing.NamedTuple):
    """What became of the search for one file."""

    path: Optional[str]  #: of the file; None when it was not found
    reason: str  #: a sentence: why it was not found; empty when it was
    looked_for: Tuple[str, ...]  #: the files that are not there or, of an unknown package, the folders looked into
