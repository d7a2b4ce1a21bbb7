import {
  BufferGeometry,
  CylinderGeometry,
  Float32BufferAttribute,
  Group,
  Mesh,
  MeshStandardMaterial,
  Quaternion,
  SphereGeometry,
  Vector3,
} from 'three';
import type { Link, Robot } from '../robot';
import { place } from './matrix';

/** From the origin to the joints that a link carries, with their axes; `size` is that of the robot. */
export function bonesOf(link: Link, robot: Robot, size: number): Group {
  const group = new Group();
  const ball = new SphereGeometry(size * 0.008, 12, 8);
  const material = new MeshStandardMaterial();
  group.add(new Mesh(ball, material));
  for (const child of link.children) {
    const joint = robot.links[child].joint;
    if (joint === null) {
      continue;
    }
    const end = new Vector3(joint.pose[3], joint.pose[7], joint.pose[11]);
    if (end.length() > size * 1e-3) {
      group.add(bone(end, size, material));
    }
    if (joint.drive.motion !== 'none') {
      group.add(place(axis(size), joint.pose));
    }
  }
  return group;
}

/** Along z. */
function axis(size: number): Mesh {
  const geometry = new CylinderGeometry(size * 0.0025, size * 0.0025, size * 0.06, 8).rotateX(Math.PI / 2);
  return new Mesh(geometry, new MeshStandardMaterial({ color: 0x2563eb }));
}

/** Thick near its beginning, and pointed. */
function bone(end: Vector3, size: number, material: MeshStandardMaterial): Mesh {
  const length = end.length();
  const girth = Math.min(length * 0.1, size * 0.02);
  const ring = [[girth, 0], [0, girth], [-girth, 0], [0, -girth]];
  const points: number[] = [];
  ring.forEach(([x, y], i) => {
    const [nextX, nextY] = ring[(i + 1) % 4];
    points.push(0, 0, 0, nextX, nextY, length * 0.15, x, y, length * 0.15);
    points.push(0, 0, length, x, y, length * 0.15, nextX, nextY, length * 0.15);
  });
  const geometry = new BufferGeometry();
  geometry.setAttribute('position', new Float32BufferAttribute(points, 3));
  geometry.computeVertexNormals();
  const mesh = new Mesh(geometry, material);
  mesh.quaternion.copy(new Quaternion().setFromUnitVectors(new Vector3(0, 0, 1), end.clone().normalize()));
  return mesh;
}
