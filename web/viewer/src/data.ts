/**
 * What the page is given: JSON in a script element that is not run. docs/viewing.md describes it. Keys that an older
 * tool did not write are optional.
 */

/** A homogeneous matrix, row by row. */
export type Matrix = readonly number[];

export interface MassData {
  readonly mass: number;
  readonly com: readonly [number, number, number];
  /** About the centre of mass, in the axes of the link. */
  readonly inertia: readonly number[];
}

export type Geometry =
  | { readonly type: 'mesh'; readonly uri: string; readonly scale: readonly number[] }
  | { readonly type: 'box'; readonly size: readonly number[] }
  | { readonly type: 'cylinder' | 'capsule'; readonly radius: number; readonly length: number }
  | { readonly type: 'sphere'; readonly radius: number };

export interface MaterialData {
  readonly name: string;
  readonly rgba: readonly number[] | null;
  readonly texture: string;
}

export interface ShapeData {
  readonly name: string;
  readonly pose: Matrix;
  readonly geometry: Geometry;
  readonly material?: MaterialData | null;
}

export interface LinkData {
  readonly name: string;
  readonly descriptionName?: string;
  readonly parentJoint: string | null;
  readonly mass: MassData | null;
  readonly visual: { readonly meshPath: string; readonly meshTransform: Matrix } | null;
  readonly visuals?: readonly ShapeData[];
  readonly collisions?: readonly ShapeData[];
  readonly localPosition: Matrix;
}

export interface JointData {
  readonly name: string;
  readonly parentLink: string | null;
  readonly childLink: string | null;
  readonly type?: string;
  readonly localPosition: Matrix;
}

export interface ActuatorData {
  readonly name: string;
  readonly type: string;
  readonly color?: string;
  readonly reflectedSymmetric?: string | null;
  readonly reflectedSymmetricReversed?: boolean;
}

/** Of settings, null is what the description does not state, or what is unlimited. */
export interface CameraSettings {
  readonly horizontalFieldOfView: number | null;
  readonly width: number | null;
  readonly height: number | null;
  readonly nearClip: number | null;
  readonly farClip: number | null;
}

export interface ScanSettings {
  readonly minimumAngle: number | null;
  readonly maximumAngle: number | null;
}

export interface SensorSettings {
  readonly camera?: CameraSettings | null;
  readonly horizontalScan?: ScanSettings | null;
  readonly verticalScan?: ScanSettings | null;
  readonly range?: { readonly minimum: number | null; readonly maximum: number | null } | null;
}

export interface SensorData {
  readonly name: string;
  readonly type: string;
  readonly width?: number;
  readonly height?: number;
  readonly settings?: SensorSettings | null;
}

export interface Dump {
  readonly name: string;
  readonly prettyName: string;
  readonly links: readonly LinkData[];
  readonly joints: readonly JointData[];
  readonly jointSymmetries: readonly { readonly joints: readonly [string | null, string | null]; readonly type: string }[];
  readonly actuators: readonly ActuatorData[];
  readonly sensors: readonly SensorData[];
}

/** What one value of a configuration stands for (rad, or m when it slides); no limit is null. */
export interface Variable {
  readonly name: string;
  readonly min: number | null;
  readonly max: number | null;
  readonly slides: boolean;
}

/** What moves a joint: its value is ratio * variable + offset, and the offset where there is no variable. */
export interface Drive {
  readonly motion: 'turns' | 'slides' | 'none';
  readonly variable: number | null;
  readonly ratio: number;
  readonly offset: number;
}

/** The link that carries a device, and the device's pose in it. */
export interface Place {
  readonly link: number;
  readonly pose: Matrix;
}

export interface Posture {
  readonly name: string;
  /** Null when the robot cannot take it: the reason says why. */
  readonly values: readonly number[] | null;
  readonly reason: string;
}

export interface Finding {
  readonly severity: 'error' | 'warning' | 'note';
  readonly code: string;
  readonly line: number | null;
  readonly column: number | null;
  readonly message: string;
  readonly hint: string;
  /** The link that it is about; null for those about the whole. */
  readonly link: number | null;
}

/** Base64 of a file. */
export interface EmbeddedFile {
  readonly type: string;
  readonly data: string;
}

export type MeshData =
  | { readonly format: 'stl' | 'obj' | 'dae'; readonly data: string; readonly files: Readonly<Record<string, EmbeddedFile>> }
  | { readonly reason: string };

export interface ViewData {
  readonly file: string;
  readonly dump: Dump;
  readonly variables: readonly Variable[];
  /** Of each joint of the dump. */
  readonly drives: readonly Drive[];
  readonly degrees?: boolean;
  readonly start: readonly number[];
  readonly postures: readonly Posture[];
  /** The hue (0 to 1) that `graph` gives them, too. */
  readonly chains: readonly { readonly name: string; readonly hue: number }[];
  /** Of each link of the dump. */
  readonly linkChains: readonly (number | null)[];
  readonly sensorPlaces: readonly (Place | null)[];
  readonly actuatorPlaces: readonly (Place | null)[];
  readonly findings: readonly Finding[];
  readonly meshes: Readonly<Record<string, MeshData>>;
  readonly textures: Readonly<Record<string, EmbeddedFile | { readonly reason: string }>>;
}

export function readData(page: Document): ViewData {
  return JSON.parse(page.getElementById('robot')?.textContent ?? '') as ViewData;
}
