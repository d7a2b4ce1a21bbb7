import { CanvasTexture, Mesh, MeshBasicMaterial, Object3D, SphereGeometry, Sprite, SpriteMaterial, SRGBColorSpace } from 'three';
import type { ActuatorData, Place, SensorData } from '../data';
import { matrixAt, place } from '../picture/matrix';
import type { Link } from '../robot';
import { frustumOf } from './frustum';
import { LinkLayer } from './layer';

/** Sensors that measure a joint: each joint has some, and signs for all of them would hide the rest. */
const ofJoints = /^(Angle|Torque|Coupled|Wheel|DCM)/;

/** What cameras and scanners see, and a sign for each sensor. */
export class Sensors extends LinkLayer {
  readonly label = 'Sensors';
  readonly key = 's';
  private readonly signs = new Map<string, SpriteMaterial>();

  protected draw(link: Link): Object3D[] {
    const { dump, sensorPlaces } = this.picture.robot.data;
    const carried = carriedBy(link, dump.sensors, sensorPlaces).filter(([{ type }]) => !ofJoints.test(type));
    return carried.flatMap(([sensor, pose]) => {
      const frustum = frustumOf(sensor, this.picture.stage.robotSize);
      const sign = new Sprite(this.signOf(sensor.type));
      matrixAt(pose).decompose(sign.position, sign.quaternion, sign.scale);
      sign.scale.setScalar(0.032);
      sign.renderOrder = 3;
      named(sign, sensor);
      return frustum === null ? [sign] : [place(frustum, pose), sign];
    });
  }

  private signOf(type: string): SpriteMaterial {
    let sign = this.signs.get(type);
    if (sign === undefined) {
      const map = new CanvasTexture(signPicture(initials(type)));
      map.colorSpace = SRGBColorSpace;
      sign = new SpriteMaterial({ map, sizeAttenuation: false, depthTest: false });
      this.signs.set(type, sign);
    }
    return sign;
  }
}

const lightColors: Readonly<Record<string, number>> = { Red: 0xff2d2d, Green: 0x22dd55, Blue: 0x3b82ff };

/** Those actuators that shine. */
export class Lights extends LinkLayer {
  readonly label = 'Lights';
  readonly key = 'l';

  protected draw(link: Link): Object3D[] {
    const { dump, actuatorPlaces } = this.picture.robot.data;
    return carriedBy(link, dump.actuators, actuatorPlaces)
      .filter(([actuator]) => actuator.color !== undefined)
      .map(([actuator, pose]) => {
        const color = lightColors[actuator.color ?? ''] ?? 0xffffff;
        const light = new Mesh(new SphereGeometry(this.picture.stage.robotSize * 0.009, 16, 12), new MeshBasicMaterial({ color }));
        named(light, actuator);
        return place(light, pose);
      });
  }
}

/** The devices on a link, each with its pose. */
function carriedBy<Device>(link: Link, devices: readonly Device[], places: readonly (Place | null)[]): [Device, Place['pose']][] {
  return devices.flatMap((device, i) => {
    const carrier = places[i];
    return carrier !== null && carrier.link === link.index ? [[device, carrier.pose] as [Device, Place['pose']]] : [];
  });
}

/** For those who point at it. */
function named(object: Object3D, device: SensorData | ActuatorData): void {
  object.userData.label = `${device.name} (${device.type})`;
}

/** "CameraDepth" becomes "CD". */
function initials(type: string): string {
  const capitals = type.replace(/[^A-Z]/g, '');
  return capitals.length > 1 ? capitals.slice(0, 3) : type.slice(0, 2);
}

function signPicture(text: string): HTMLCanvasElement {
  const canvas = document.createElement('canvas');
  canvas.width = canvas.height = 64;
  const context = canvas.getContext('2d');
  if (context !== null) {
    context.fillStyle = '#0f766e';
    context.beginPath();
    context.arc(32, 32, 30, 0, 2 * Math.PI);
    context.fill();
    context.fillStyle = '#ffffff';
    context.font = 'bold 26px sans-serif';
    context.textAlign = 'center';
    context.textBaseline = 'middle';
    context.fillText(text, 32, 34);
  }
  return canvas;
}
