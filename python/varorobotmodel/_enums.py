"""The enumerations."""

import enum


class Severity(enum.IntEnum):
    """How grave a finding is; greater is graver."""

    NOTE = 0  #: what the reader passed over
    WARNING = 1  #: what loads, but is hardly meant
    ERROR = 2  #: what the description is refused for

    def __str__(self) -> str:
        return self.name.lower()


class JointType(enum.Enum):
    """How a joint moves."""

    REVOLUTE = 0  #: turns within its limits
    CONTINUOUS = 1  #: turns without limits
    PRISMATIC = 2  #: slides within its limits
    FIXED = 3  #: does not move
    PLANAR = 4  #: slides and turns in a plane; held at its zero position
    FLOATING = 5  #: moves freely; held at its zero position


class LinkType(enum.Enum):
    """The kinds of links."""

    REGULAR = 0  #: the root body, or what a joint moves
    WHEEL = 1  #: what a wheel of the description is


class SymmetryType(enum.Enum):
    """Which values of two joints mirror each other."""

    REFLECTED_SYMMETRIC = 0  #: equal values of the two joints
    REFLECTED_SYMMETRIC_REVERSED = 1  #: opposite values


class Color(enum.Enum):
    """What a light shines in."""

    RED = 0
    GREEN = 1
    BLUE = 2


class ActuatorType(enum.Enum):
    """The kinds of actuators, one for each of their classes."""

    ANGLE = 0
    COUPLED = 1
    TORQUE = 2
    ANGLE_SPEED = 3
    WHEEL_TORQUE = 4
    WHEEL_VELOCITY = 5
    LED = 6


class SensorType(enum.Enum):
    """The kinds of sensors, one for each of their classes."""

    ANGLE = 0
    COUPLED = 1
    SONAR = 2
    CAMERA = 3
    FSR = 4
    INERTIAL = 5
    BUMPER = 6
    TORQUE = 7
    ANGLE_SPEED = 8
    WHEEL_VELOCITY = 9
    TACTILE = 10
    SINGLE_DEPTH = 12
    ARRAY_DEPTH = 13
    CAMERA_DEPTH = 14
    MICROPHONE = 15


class TransmissionSource(enum.Enum):
    """Which element of a description stated a transmission."""

    TRANSMISSION = 0
    ROS2_CONTROL = 1


class ExtensionOwner(enum.Enum):
    """What an extension stands in."""

    ROBOT = 0
    LINK = 1
    JOINT = 2
    SENSOR = 3
