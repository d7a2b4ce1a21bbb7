import { BoxGeometry, Group, LineBasicMaterial, LineSegments, EdgesGeometry, Mesh, MeshBasicMaterial, MeshStandardMaterial, Object3D, SphereGeometry } from 'three';
import { equivalentBox, leadRadius } from '../picture/inertia';
import { poseSize, transformPoint } from '../pose';
import type { Link, Robot } from '../robot';
import { LinkLayer } from './layer';

/** Of each link, and a greater one of the whole robot. */
export class CentersOfMass extends LinkLayer {
  readonly label = 'Centres of mass';
  readonly key = 'g';
  override readonly isInside = true;
  private readonly whole = new Group();

  protected override apply(visible: boolean): void {
    super.apply(visible);
    if (visible && this.whole.parent === null) {
      this.whole.add(ball(this.picture.stage.robotSize * 0.018, 0xdc2626));
      this.picture.stage.root.add(this.whole);
    }
    this.whole.visible = visible;
    this.update();
  }

  override update(): void {
    const center = centerOfMass(this.picture.robot, this.picture.kinematics.poses);
    this.whole.visible = this.isVisible && center !== null;
    this.whole.position.set(...(center ?? ([0, 0, 0] as const)));
  }

  protected draw(link: Link): Object3D[] {
    const { mass } = link.data;
    if (mass === null || !(mass.mass > 0)) {
      return [];
    }
    const mark = ball(this.picture.stage.robotSize * 0.007, 0xf59e0b);
    mark.position.set(...mass.com);
    return [mark];
  }
}

/** Each link's mass and inertia as a box of even density. */
export class InertiaBoxes extends LinkLayer {
  readonly label = 'Inertia boxes';
  readonly key = 'i';
  override readonly isInside = true;

  protected draw(link: Link): Object3D[] {
    const box = equivalentBox(link.data.mass);
    if (box === null) {
      return [];
    }
    const geometry = new BoxGeometry(...box.size.toArray());
    // The greater a box, the fainter: those of made-up inertias must not hide the others, nor fill the view from within.
    const greatness = Math.max(...box.size.toArray()) / (0.15 * this.picture.stage.robotSize);
    const opacity = 0.25 / Math.max(1, greatness ** 2);
    const faces = new Mesh(geometry, new MeshBasicMaterial({ color: 0x7c3aed, transparent: true, opacity, depthWrite: false }));
    const edges = new LineSegments(new EdgesGeometry(geometry), new LineBasicMaterial({ color: 0x7c3aed }));
    const object = new Group().add(faces, edges);
    object.matrixAutoUpdate = false;
    object.matrix.copy(box.pose);
    return [object];
  }
}

/** Each link's mass as a ball of lead about its centre of mass. */
export class LeadBalls extends LinkLayer {
  readonly label = 'Masses as lead';
  readonly key = 'b';
  override readonly isInside = true;

  protected draw(link: Link): Object3D[] {
    const { mass } = link.data;
    if (mass === null || !(mass.mass > 0)) {
      return [];
    }
    const material = new MeshStandardMaterial({ color: 0x5b6470, metalness: 0.5, roughness: 0.45 });
    const object = new Mesh(new SphereGeometry(leadRadius(mass.mass), 24, 16), material);
    object.position.set(...mass.com);
    return [object];
  }
}

/** Of the whole robot, in the frame of its root; null for one that weighs nothing. */
export function centerOfMass(robot: Robot, poses: Float64Array): [number, number, number] | null {
  let total = 0;
  const sum: [number, number, number] = [0, 0, 0];
  for (const { index, data } of robot.links) {
    const mass = data.mass?.mass ?? 0;
    if (mass > 0) {
      const center = transformPoint(poses, index * poseSize, data.mass?.com ?? [0, 0, 0]);
      total += mass;
      center.forEach((value, i) => (sum[i] += mass * value));
    }
  }
  return total > 0 ? [sum[0] / total, sum[1] / total, sum[2] / total] : null;
}

/** Seen through everything. */
function ball(radius: number, color: number): Mesh {
  const mark = new Mesh(new SphereGeometry(radius, 16, 12), new MeshBasicMaterial({ color, depthTest: false, transparent: true }));
  mark.renderOrder = 2;
  return mark;
}
