import { Matrix4, Vector3 } from 'three';
import type { MassData } from '../data';

/** A solid box of even density with the same mass and inertia, in the frame of the link. */
export interface EquivalentBox {
  readonly size: Vector3;
  readonly pose: Matrix4;
}

/** Null for what has no mass or an inertia that no box has. */
export function equivalentBox(data: MassData | null): EquivalentBox | null {
  if (data === null || !(data.mass > 0) || data.inertia.length < 9) {
    return null;
  }
  const { moments, axes } = principal(data.inertia);
  const sum = moments[0] + moments[1] + moments[2];
  const squares = moments.map((moment) => (6 * (sum - 2 * moment)) / data.mass);
  if (!(sum > 0) || squares.some((square) => !(square >= -1e-6 * sum / data.mass))) {
    return null;
  }
  const size = new Vector3(...squares.map((square) => Math.sqrt(Math.max(square, 0))));
  return { size, pose: axes.setPosition(data.com[0], data.com[1], data.com[2]) };
}

/** The radius of the ball of lead that weighs as much. */
export function leadRadius(mass: number): number {
  const leadDensity = 11340; // kg/m³
  return Math.cbrt((3 * Math.max(mass, 0)) / (4 * Math.PI * leadDensity));
}

/** Principal moments, and the axes that they are about as columns of a rotation, by Jacobi's rotations. */
function principal(inertia: readonly number[]): { moments: number[]; axes: Matrix4 } {
  const a = [0, 1, 2].map((row) => [0, 1, 2].map((column) => (inertia[3 * row + column] + inertia[3 * column + row]) / 2));
  const v = [0, 1, 2].map((row) => [0, 1, 2].map((column) => (row === column ? 1 : 0)));
  for (let sweep = 0; sweep < 20; ++sweep) {
    for (const [p, q] of [[0, 1], [0, 2], [1, 2]]) {
      rotate(a, v, p, q);
    }
  }
  const axes = new Matrix4().makeBasis(
    new Vector3(v[0][0], v[1][0], v[2][0]),
    new Vector3(v[0][1], v[1][1], v[2][1]),
    new Vector3(v[0][2], v[1][2], v[2][2]),
  );
  return { moments: [a[0][0], a[1][1], a[2][2]], axes };
}

/** Makes entry (p, q) zero, and turns the axes likewise. */
function rotate(a: number[][], v: number[][], p: number, q: number): void {
  if (a[p][q] === 0) {
    return;
  }
  const angle = 0.5 * Math.atan2(2 * a[p][q], a[q][q] - a[p][p]);
  const c = Math.cos(angle);
  const s = Math.sin(angle);
  for (let k = 0; k < 3; ++k) {
    [a[k][p], a[k][q]] = [c * a[k][p] - s * a[k][q], s * a[k][p] + c * a[k][q]];
  }
  for (let k = 0; k < 3; ++k) {
    [a[p][k], a[q][k]] = [c * a[p][k] - s * a[q][k], s * a[p][k] + c * a[q][k]];
    [v[k][p], v[k][q]] = [c * v[k][p] - s * v[k][q], s * v[k][p] + c * v[k][q]];
  }
}
