import { AxesHelper, ConeGeometry, CylinderGeometry, Group, Mesh, MeshBasicMaterial, Object3D } from 'three';
import { place } from '../picture/matrix';
import type { Link } from '../robot';
import { LinkLayer } from './layer';

/** The frame of each link: x red, y green, z blue. */
export class Frames extends LinkLayer {
  readonly label = 'Frames';
  readonly key = 'x';
  override readonly isInside = true;

  protected draw(): Object3D[] {
    return [new AxesHelper(this.picture.stage.robotSize * 0.05)];
  }
}

/** The axis about or along which each joint moves: the z axis of its frame. */
export class JointAxes extends LinkLayer {
  readonly label = 'Joint axes';
  readonly key = 'j';
  override readonly isInside = true;

  protected draw(link: Link): Object3D[] {
    const arrows: Object3D[] = [];
    for (const child of link.children) {
      const joint = this.picture.robot.links[child].joint;
      if (joint !== null && joint.drive.motion !== 'none') {
        const color = joint.drive.motion === 'slides' ? 0x16a34a : 0x2563eb;
        arrows.push(place(arrow(this.picture.stage.robotSize, color), joint.pose));
      }
    }
    return arrows;
  }
}

/** Along z, about the origin. */
function arrow(size: number, color: number): Group {
  const length = size * 0.09;
  const material = new MeshBasicMaterial({ color });
  const shaft = new CylinderGeometry(size * 0.0025, size * 0.0025, length, 8).rotateX(Math.PI / 2);
  const tip = new ConeGeometry(size * 0.008, size * 0.022, 12).rotateX(Math.PI / 2).translate(0, 0, length / 2);
  return new Group().add(new Mesh(shaft, material), new Mesh(tip, material));
}
