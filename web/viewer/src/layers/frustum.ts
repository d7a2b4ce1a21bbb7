import { BufferGeometry, DoubleSide, Float32BufferAttribute, Group, LineBasicMaterial, LineSegments, Mesh, MeshBasicMaterial } from 'three';
import type { SensorData } from '../data';

/** The directions (rad, about the sensor's x axis) that it sees, and how far (m). */
interface View {
  readonly left: number;
  readonly right: number;
  readonly down: number;
  readonly up: number;
  readonly near: number;
  readonly far: number;
  readonly isPlane: boolean;
}

const color = 0x0ea5e9;
/** Farther than so many times the robot's size nothing is drawn. */
const drawnSizes = 0.3;

/** What a camera or scanner sees along the x axis of its frame; null for other sensors. */
export function frustumOf(sensor: SensorData, robotSize: number): Group | null {
  const view = viewOf(sensor);
  if (view === null) {
    return null;
  }
  const far = Math.min(view.far, robotSize * drawnSizes);
  const near = Math.min(view.near, far * 0.5);
  return view.isPlane ? camera(view, near, far) : scan(view, near, far);
}

/** What a camera sees across that does not state it. */
const usualWidth = 60 * (Math.PI / 180);

function viewOf({ type, width, height, settings }: SensorData): View | null {
  const across = settings?.horizontalScan;
  if (across) {
    return {
      left: across.maximumAngle ?? Math.PI,
      right: across.minimumAngle ?? -Math.PI,
      down: settings.verticalScan?.minimumAngle ?? 0,
      up: settings.verticalScan?.maximumAngle ?? 0,
      near: settings.range?.minimum ?? 0,
      far: settings.range?.maximum ?? Infinity,
      isPlane: false,
    };
  }
  const camera = settings?.camera;
  if (!camera && !type.startsWith('Camera')) {
    return null;
  }
  const aspect = (camera?.width ?? width ?? 4) / (camera?.height ?? height ?? 3);
  const half = Math.min(camera?.horizontalFieldOfView ?? usualWidth, 3) / 2;
  const upward = Math.atan(Math.tan(half) / (aspect > 0 && Number.isFinite(aspect) ? aspect : 1));
  return { left: half, right: -half, down: -upward, up: upward, near: camera?.nearClip ?? 0, far: camera?.farClip ?? Infinity, isPlane: true };
}

function camera(view: View, near: number, far: number): Group {
  const corners = (x: number) =>
    [
      [view.left, view.up],
      [view.right, view.up],
      [view.right, view.down],
      [view.left, view.down],
    ].map(([across, upward]) => [x, x * Math.tan(across), x * Math.tan(upward)]);
  const [front, back] = [corners(near), corners(far)];
  const lines: number[] = [];
  const faces: number[] = [];
  for (let i = 0; i < 4; ++i) {
    const next = (i + 1) % 4;
    lines.push(...front[i], ...front[next], ...back[i], ...back[next], ...front[i], ...back[i]);
    faces.push(...front[i], ...front[next], ...back[next], ...front[i], ...back[next], ...back[i]);
  }
  return drawing(lines, faces);
}

function scan(view: View, near: number, far: number): Group {
  const steps = Math.min(200, Math.max(2, Math.ceil(Math.abs(view.left - view.right) / 0.1)));
  const point = (radius: number, across: number, upward: number) => [
    radius * Math.cos(upward) * Math.cos(across),
    radius * Math.cos(upward) * Math.sin(across),
    radius * Math.sin(upward),
  ];
  const lines: number[] = [];
  const faces: number[] = [];
  for (const upward of new Set([view.down, view.up])) {
    for (let i = 0; i < steps; ++i) {
      const [a, b] = [i, i + 1].map((step) => view.right + ((view.left - view.right) * step) / steps);
      const [innerA, innerB] = [point(near, a, upward), point(near, b, upward)];
      const [outerA, outerB] = [point(far, a, upward), point(far, b, upward)];
      lines.push(...outerA, ...outerB);
      faces.push(...innerA, ...outerA, ...outerB, ...innerA, ...outerB, ...innerB);
      if (i === 0) {
        lines.push(...innerA, ...outerA);
      }
      if (i === steps - 1) {
        lines.push(...innerB, ...outerB);
      }
    }
  }
  return drawing(lines, faces);
}

function drawing(lines: number[], faces: number[]): Group {
  const edges = new BufferGeometry().setAttribute('position', new Float32BufferAttribute(lines, 3));
  const sides = new BufferGeometry().setAttribute('position', new Float32BufferAttribute(faces, 3));
  const glass = new MeshBasicMaterial({ color, transparent: true, opacity: 0.08, side: DoubleSide, depthWrite: false });
  return new Group().add(new LineSegments(edges, new LineBasicMaterial({ color })), new Mesh(sides, glass));
}
