import { multiply, poseSize, slide, turn } from './pose';
import type { Joint, Robot } from './robot';

/**
 * Where the links are for given values of the variables.
 *
 * A joint's frame is posed in that of its parent link; the joint turns about, or slides along, the z axis of that
 * frame; the frame of its child link is posed in the moved one. Poses are in the frame of the root.
 */
export class Kinematics {
  /** Of all links in the order of the dump, behind one another. */
  readonly poses: Float64Array;

  private readonly moved = new Float64Array(poseSize);

  constructor(private readonly robot: Robot) {
    this.poses = new Float64Array(robot.links.length * poseSize);
  }

  update(values: ArrayLike<number>): void {
    for (const link of this.robot.inTreeOrder) {
      const target = link.index * poseSize;
      if (link.joint === null || link.parent === null) {
        this.poses.set(link.pose, target);
        continue;
      }
      const { moved } = this;
      multiply(moved, 0, this.poses, link.parent * poseSize, link.joint.pose, 0);
      move(moved, link.joint, values);
      multiply(this.poses, target, moved, 0, link.pose, 0);
    }
  }
}

/** Where a joint stands (rad, or m). */
export function valueOf(joint: Joint, values: ArrayLike<number>): number {
  const { variable, ratio, offset } = joint.drive;
  return variable === null ? offset : ratio * values[variable] + offset;
}

function move(pose: Float64Array, joint: Joint, values: ArrayLike<number>): void {
  const value = valueOf(joint, values);
  switch (joint.drive.motion) {
    case 'turns':
      turn(pose, 0, value);
      break;
    case 'slides':
      slide(pose, 0, value);
      break;
    case 'none':
      break;
  }
}
