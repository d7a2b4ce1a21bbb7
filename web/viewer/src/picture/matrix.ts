import { Matrix4, Object3D } from 'three';

export function matrixAt(numbers: ArrayLike<number>, offset = 0, into = new Matrix4()): Matrix4 {
  const n = (i: number) => numbers[offset + i];
  return into.set(
    ...[n(0), n(1), n(2), n(3)] as const,
    ...[n(4), n(5), n(6), n(7)] as const,
    ...[n(8), n(9), n(10), n(11)] as const,
    ...[n(12), n(13), n(14), n(15)] as const,
  );
}

/** Poses an object in its parent's frame, once. */
export function place<Kind extends Object3D>(object: Kind, pose: ArrayLike<number>): Kind {
  object.matrixAutoUpdate = false;
  matrixAt(pose, 0, object.matrix);
  return object;
}
