"""Where sensors of URDF files state what the dump of `varo-robot` has as their settings and noises."""
import math


def noises_of(part, within=()):
    """The `noise` elements in an element of a sensor, each with the names of the elements around it."""
    for child in part:
        if child.tag == "noise":
            yield within, child
        elif len(within) < 2:
            yield from noises_of(child, (*within, child.tag))


# Where a sensor states what the dump has as settings: attributes behind "@", alternatives one after the other.
DEGREES = math.pi / 180
RAYS = ("ray/scan/", "lidar/scan/", "ray/", "lidar/")
SETTINGS = {
    ("updateRate",): ["@update_rate", "update_rate", "updateRate"],
    ("camera", "name"): ["camera@name"],
    ("camera", "horizontalFieldOfView"): ["camera/horizontal_fov", "camera/image@hfov", "hfov*"],
    ("camera", "nearClip"): ["camera/clip/near", "camera/image@near", "nearClip"],
    ("camera", "farClip"): ["camera/clip/far", "camera/image@far", "farClip"],
    ("camera", "format"): ["camera/image/format", "camera/image@format", "imageFormat"],
    ("camera", "width"): ["camera/image/width", "camera/image@width"],
    ("camera", "height"): ["camera/image/height", "camera/image@height"],
    ("horizontalScan", "samples"): ["rayCount"],
    ("horizontalScan", "minimumAngle"): ["minAngle*"],
    ("horizontalScan", "maximumAngle"): ["maxAngle*"],
    ("range", "minimum"): ["ray/range/min", "lidar/range/min", "sonar/min", "minRange"],
    ("range", "maximum"): ["ray/range/max", "lidar/range/max", "sonar/max", "maxRange"],
    ("range", "resolution"): ["ray/range/resolution", "lidar/range/resolution", "resRange"],
}
for scan in ("horizontal", "vertical"):
    for key, name in (("samples", "samples"), ("resolution", "resolution"), ("minimumAngle", "min_angle"),
                      ("maximumAngle", "max_angle")):
        SETTINGS.setdefault((scan + "Scan", key), []).extend(
            rays + scan + separator + name for rays in RAYS for separator in "/@")

# Elements of a sensor in which noise may be stated, and where the dump has what it says.
NOISY = ("camera", "depth_camera", "rgbd_camera", "ray", "gpu_ray", "lidar", "gpu_lidar", "imu", "force_torque",
         "magnetometer", "altimeter", "gps", "navsat", "air_pressure", "air_speed")
NOISE = {"type": "type", "mean": "mean", "stddev": "standardDeviation", "bias_mean": "biasMean",
         "bias_stddev": "biasStandardDeviation", "dynamic_bias_stddev": "driftStandardDeviation",
         "dynamic_bias_correlation_time": "driftTime", "precision": "precision"}
