/** Values (rad, or m when they slide) as they are shown. */

const degreesPerRadian = 180 / Math.PI;

function factor(slides: boolean, degrees: boolean): number {
  return degrees && !slides ? degreesPerRadian : 1;
}

export function shown(value: number, slides: boolean, degrees: boolean): number {
  return value * factor(slides, degrees);
}

export function read(value: number, slides: boolean, degrees: boolean): number {
  return value / factor(slides, degrees);
}

export function unitOf(slides: boolean, degrees: boolean): string {
  return slides ? 'm' : degrees ? '°' : 'rad';
}

/** For eyes. */
export function text(value: number, slides: boolean, degrees: boolean): string {
  return shown(value, slides, degrees).toFixed(degrees && !slides ? 1 : 3);
}

/** The options that have `varo-robot pose` take these values, as a shell reads them. */
export function poseOptions(variables: readonly { readonly name: string }[], values: ArrayLike<number>): string {
  return variables
    .map(({ name }, i) => `--joint ${quoted(`${name}=${String(values[i])}`)}`)
    .join(' \\\n  ');
}

export function quoted(word: string): string {
  return /^[\w.,:=+/-]+$/.test(word) ? word : `'${word.replaceAll("'", "'\\''")}'`;
}
