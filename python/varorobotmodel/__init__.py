"""Robot descriptions, native or URDF, as immutable models.

    >>> import varorobotmodel as vr
    >>> model = vr.load("humanoid.xml")
    >>> model.joint("LElbowBend").limits.lower
    -2.5

``load`` and ``loads`` make a ``Model``, ``check`` and ``lint`` say what is wrong with a description, ``convert`` writes
it in another dialect. ``Kinematics`` and ``Configuration`` move a model. Units are m, rad, kg, s, N and N*m; poses are
4x4 arrays.

``python3 -m varorobotmodel`` is the command-line tool, ``varo-robot``.
"""

from ._core import (
    ActuatorGroup as ActuatorGroup,
    Configuration as Configuration,
    Element as Element,
    Frame as Frame,
    Joint as Joint,
    JointGroup as JointGroup,
    JointSymmetry as JointSymmetry,
    Kinematics as Kinematics,
    Link as Link,
    MeshSearch as MeshSearch,
    Model as Model,
    __version__ as __version__,
    check as check,
    checks as checks,
    convert as convert,
    friction_coefficient as friction_coefficient,
    lint as lint,
    load as load,
    loads as loads,
    mesh_folders_from_environment as mesh_folders_from_environment,
)
from ._core.devices import (
    Actuator as Actuator,
    AngleActuator as AngleActuator,
    AngleSensor as AngleSensor,
    AngleSpeedActuator as AngleSpeedActuator,
    AngleSpeedSensor as AngleSpeedSensor,
    ArrayDepthSensor as ArrayDepthSensor,
    BaseCamera as BaseCamera,
    BumperSensor as BumperSensor,
    CameraDepthSensor as CameraDepthSensor,
    CameraSensor as CameraSensor,
    CoupledActuator as CoupledActuator,
    CoupledSensor as CoupledSensor,
    DCMSensor as DCMSensor,
    FSRSensor as FSRSensor,
    InertialSensor as InertialSensor,
    LEDActuator as LEDActuator,
    MicrophoneSensor as MicrophoneSensor,
    Sensor as Sensor,
    SingleDepthSensor as SingleDepthSensor,
    SonarSensor as SonarSensor,
    TactileSensor as TactileSensor,
    TorqueActuator as TorqueActuator,
    TorqueSensor as TorqueSensor,
    WheelTorqueActuator as WheelTorqueActuator,
    WheelVelocityActuator as WheelVelocityActuator,
    WheelVelocitySensor as WheelVelocitySensor,
)
from ._elements import Elements as Elements
from ._enums import (
    ActuatorType as ActuatorType,
    Color as Color,
    ExtensionOwner as ExtensionOwner,
    JointType as JointType,
    LinkType as LinkType,
    SensorType as SensorType,
    Severity as Severity,
    SymmetryType as SymmetryType,
    TransmissionSource as TransmissionSource,
)
from ._errors import DescriptionError as DescriptionError, UnknownNameError as UnknownNameError
from ._values import (
    Box as Box,
    Calibration as Calibration,
    CameraSettings as CameraSettings,
    Capsule as Capsule,
    Collision as Collision,
    Cylinder as Cylinder,
    Extension as Extension,
    Finding as Finding,
    JointVariable as JointVariable,
    Limits as Limits,
    MassProperties as MassProperties,
    Material as Material,
    Mesh as Mesh,
    MeshFile as MeshFile,
    MeshFolders as MeshFolders,
    Mimic as Mimic,
    NoiseSettings as NoiseSettings,
    Place as Place,
    RangeSettings as RangeSettings,
    Safety as Safety,
    ScanSettings as ScanSettings,
    SensorSettings as SensorSettings,
    Sphere as Sphere,
    Transmission as Transmission,
    Visual as Visual,
)
