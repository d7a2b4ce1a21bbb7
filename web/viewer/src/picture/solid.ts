import { BoxGeometry, BufferGeometry, CapsuleGeometry, CylinderGeometry, SphereGeometry } from 'three';
import type { Geometry } from '../data';

/** A primitive as descriptions mean it: centred at its origin, its axis z. */
export function solidOf(geometry: Exclude<Geometry, { type: 'mesh' }>): BufferGeometry {
  switch (geometry.type) {
    case 'box':
      return new BoxGeometry(geometry.size[0], geometry.size[1], geometry.size[2]);
    case 'sphere':
      return new SphereGeometry(geometry.radius, 32, 20);
    case 'cylinder':
      return new CylinderGeometry(geometry.radius, geometry.radius, geometry.length, 32).rotateX(Math.PI / 2);
    case 'capsule':
      return new CapsuleGeometry(geometry.radius, geometry.length, 10, 32).rotateX(Math.PI / 2);
  }
}
