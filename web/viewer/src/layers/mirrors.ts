import { BufferGeometry, Float32BufferAttribute, LineBasicMaterial, LineSegments } from 'three';
import { poseSize } from '../pose';
import { Layer } from './layer';

/** A line between the two links of each mirror pair. */
export class Mirrors extends Layer {
  readonly label = 'Mirror pairs';
  readonly key = 'p';
  private readonly pairs = this.linkPairs();
  private lines: LineSegments | null = null;

  override update(): void {
    if (this.lines !== null && this.isVisible) {
      const { poses } = this.picture.kinematics;
      const points = this.pairs.flat().flatMap((link) => [3, 7, 11].map((i) => poses[link * poseSize + i]));
      this.lines.geometry.setAttribute('position', new Float32BufferAttribute(points, 3));
    }
  }

  protected apply(visible: boolean): void {
    if (this.lines === null) {
      const material = new LineBasicMaterial({ color: 0xdb2777, depthTest: false, transparent: true });
      this.lines = new LineSegments(new BufferGeometry(), material);
      this.lines.frustumCulled = false;
      this.lines.renderOrder = 2;
      this.picture.stage.root.add(this.lines);
    }
    this.lines.visible = visible;
    this.update();
  }

  private linkPairs(): [number, number][] {
    const { robot } = this.picture;
    return robot.data.dump.jointSymmetries.flatMap(({ joints }) => {
      const ends = joints.map((name) => robot.jointNamed(name)).map((joint) => joint && robot.linkOf(joint)?.index);
      const [first, second] = ends;
      return first !== undefined && second !== undefined && first !== second ? [[first, second] as [number, number]] : [];
    });
  }
}
