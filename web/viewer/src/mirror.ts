import type { Robot } from './robot';

/** Two variables that mirror each other, at opposite values when `reversed`; one may be its own mirror. */
export interface MirrorPair {
  readonly first: number;
  readonly second: number;
  readonly reversed: boolean;
}

/** The pairs that symmetries of joints and of coupled actuators make. */
export function mirrorPairs(robot: Robot): MirrorPair[] {
  const { dump, variables } = robot.data;
  const places = new Map(variables.map((variable, i) => [variable.name, i]));
  const pairs = new Map<number, MirrorPair>();
  const add = (one: string | null, other: string | null, reversed: boolean) => {
    const first = places.get(one ?? '');
    const second = places.get(other ?? '');
    if (first !== undefined && second !== undefined && !pairs.has(first) && !pairs.has(second)) {
      const pair = { first, second, reversed };
      pairs.set(first, pair).set(second, pair);
    }
  };
  for (const { joints, type } of dump.jointSymmetries) {
    add(joints[0], joints[1], type === 'ReflectedSymmetricReversed');
  }
  for (const actuator of dump.actuators) {
    add(actuator.name, actuator.reflectedSymmetric ?? null, actuator.reflectedSymmetricReversed ?? false);
  }
  return [...new Set(pairs.values())];
}

/** The values of the mirror image. What mirrors nothing stays. */
export function mirrored(values: Float64Array, pairs: readonly MirrorPair[]): Float64Array {
  const image = values.slice();
  for (const { first, second, reversed } of pairs) {
    const sign = reversed ? -1 : 1;
    image[first] = sign * values[second];
    image[second] = sign * values[first];
  }
  return image;
}
