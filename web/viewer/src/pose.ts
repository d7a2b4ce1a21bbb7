/** Homogeneous matrices as rows of 16 numbers, several behind one another in one array. */

export const poseSize = 16;

type Numbers = ArrayLike<number>;

/** out[o] = a[i] * b[j], where o, i and j are offsets; out is none of the factors. */
export function multiply(out: Float64Array, o: number, a: Numbers, i: number, b: Numbers, j: number): void {
  for (let row = 0; row < 12; row += 4) {
    for (let column = 0; column < 4; ++column) {
      out[o + row + column] =
        a[i + row] * b[j + column] +
        a[i + row + 1] * b[j + 4 + column] +
        a[i + row + 2] * b[j + 8 + column] +
        (column === 3 ? a[i + row + 3] : 0);
    }
  }
  out[o + 12] = 0;
  out[o + 13] = 0;
  out[o + 14] = 0;
  out[o + 15] = 1;
}

/** Turns the pose at the offset about its own z axis. */
export function turn(pose: Float64Array, offset: number, angle: number): void {
  const cosine = Math.cos(angle);
  const sine = Math.sin(angle);
  for (let row = offset; row < offset + 12; row += 4) {
    const x = pose[row];
    const y = pose[row + 1];
    pose[row] = cosine * x + sine * y;
    pose[row + 1] = cosine * y - sine * x;
  }
}

/** Slides the pose at the offset along its own z axis. */
export function slide(pose: Float64Array, offset: number, distance: number): void {
  for (let row = offset; row < offset + 12; row += 4) {
    pose[row + 3] += distance * pose[row + 2];
  }
}

/** The point of the frame at the offset, in the frame outside. */
export function transformPoint(pose: Numbers, offset: number, point: Numbers): [number, number, number] {
  const along = (row: number) =>
    pose[offset + row] * point[0] +
    pose[offset + row + 1] * point[1] +
    pose[offset + row + 2] * point[2] +
    pose[offset + row + 3];
  return [along(0), along(4), along(8)];
}
