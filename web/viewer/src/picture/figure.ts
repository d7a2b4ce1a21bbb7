import { Box3, Color, Group, Material, Mesh, MeshStandardMaterial, Object3D, Vector3 } from 'three';
import type { MaterialData, ShapeData } from '../data';
import type { Kinematics } from '../kinematics';
import { poseSize } from '../pose';
import type { Link, Robot } from '../robot';
import { bonesOf } from './bone';
import { equivalentBox } from './inertia';
import { matrixAt, place } from './matrix';
import { forEachMesh, type MeshLibrary, unstated } from './mesh_library';
import { solidOf } from './solid';

const plain = 0xb8bec9;
const standIn = 0xe0bb78;

/** The robot in the picture: a frame for each link, with what is shown of it. */
export class Figure {
  /** By the places of the links in the dump; what layers draw of a link goes in here. */
  readonly frames: readonly Group[];
  /** What is seen of each link. */
  readonly bodies: readonly Group[];

  constructor(
    private readonly robot: Robot,
    private readonly kinematics: Kinematics,
    private readonly meshes: MeshLibrary,
    root: Object3D,
  ) {
    const size = extentOf(kinematics.poses);
    this.frames = robot.links.map(() => {
      const frame = new Group();
      frame.matrixAutoUpdate = false;
      root.add(frame);
      return frame;
    });
    this.bodies = robot.links.map((link) => {
      const body = this.bodyOf(link, size);
      body.userData.link = link.index;
      this.frames[link.index].add(body);
      return body;
    });
    this.update();
  }

  update(): void {
    this.frames.forEach((frame, i) => {
      matrixAt(this.kinematics.poses, i * poseSize, frame.matrix);
    });
  }

  /** In the frame of the root. */
  bounds(): Box3 {
    const bounds = new Box3();
    this.frames.forEach((frame, i) => {
      bounds.union(boundsOf(this.bodies[i]).applyMatrix4(frame.matrix));
    });
    return bounds;
  }

  /** What collisions and visuals are made of; a box stands for a mesh that is not there. */
  shapeOf(shape: ShapeData, link: Link, size: number): Object3D {
    const { geometry } = shape;
    const object = geometry.type === 'mesh' ? this.meshOf(geometry.uri, geometry.scale) : new Mesh(solidOf(geometry), surface());
    const shown = object ?? this.standInFor(link, size);
    if (object !== null) {
      this.paint(object, shape.material ?? null);
    }
    // A box that is made of masses is posed in the link, and not where the mesh would be.
    return object === null ? shown : place(new Group(), shape.pose).add(shown);
  }

  private bodyOf(link: Link, size: number): Group {
    const body = new Group();
    if (link.visuals.length === 0) {
      return body.add(bonesOf(link, this.robot, size));
    }
    const shapes = link.visuals.map((shape) => this.shapeOf(shape, link, size));
    const there = shapes.filter((object) => object.userData.standIn !== true);
    for (const object of there) {
      body.add(object);
    }
    if (there.length < shapes.length) {
      body.add(...this.standInsFor(link, size), bonesOf(link, this.robot, size));
    }
    return body;
  }

  private meshOf(uri: string, scale: readonly number[]): Object3D | null {
    const mesh = this.meshes.mesh(uri);
    mesh?.scale.set(scale[0], scale[1], scale[2]);
    return mesh;
  }

  /** The solids that the link collides with, where these say what it looks like, and otherwise a box. */
  private standInsFor(link: Link, size: number): Object3D[] {
    const solids: Object3D[] = [];
    for (const { geometry, pose } of link.collisions) {
      if (geometry.type === 'mesh') {
        return [this.standInFor(link, size)];
      }
      solids.push(place(new Mesh(solidOf(geometry), surface(standIn)), pose));
    }
    return solids.length > 0 ? solids : [this.standInFor(link, size)];
  }

  /** Of the link's mass where it says enough of that. */
  private standInFor(link: Link, size: number): Object3D {
    const box = equivalentBox(link.data.mass);
    const edges = box?.size ?? new Vector3(1, 1, 1).multiplyScalar(size * 0.03);
    // Inertias that are only made up may be those of boxes that would hide all else.
    const most = Math.max(1.2 * reachOf(link, this.robot), size * 0.03);
    edges.multiplyScalar(Math.min(1, most / Math.max(...edges.toArray())));
    const mesh = new Mesh(solidOf({ type: 'box', size: edges.max(least(size)).toArray() }), surface(standIn));
    const object = new Group().add(mesh);
    object.userData.standIn = true;
    if (box !== null) {
      object.matrixAutoUpdate = false;
      object.matrix.copy(box.pose);
    }
    return object;
  }

  /** Each link has materials of its own, so that it can be lit up. */
  private paint(object: Object3D, stated: MaterialData | null): void {
    forEachMesh(object, (mesh) => {
      mesh.material = Array.isArray(mesh.material)
        ? mesh.material.map((material) => this.painted(material, stated))
        : this.painted(mesh.material, stated);
    });
  }

  private painted(material: Material, stated: MaterialData | null): Material {
    const own = material.clone();
    const isPlain = own instanceof MeshStandardMaterial;
    const rgba = stated?.rgba;
    if (isPlain && rgba) {
      own.color = new Color().setRGB(rgba[0], rgba[1], rgba[2], 'srgb');
      own.opacity = rgba[3];
      own.transparent = rgba[3] < 1;
    } else if (isPlain && own.name === unstated) {
      own.color = new Color(plain);
    }
    if (isPlain && stated !== null && stated.texture !== '') {
      own.map = this.meshes.texture(stated.texture);
    }
    return own;
  }
}

function surface(color = plain): MeshStandardMaterial {
  return new MeshStandardMaterial({ color, roughness: 0.7, metalness: 0.05 });
}

function least(size: number): Vector3 {
  return new Vector3(1, 1, 1).multiplyScalar(size * 2e-3);
}

/** How far a link's own joint is from the link before, and what the link carries from its origin, in metres. */
function reachOf(link: Link, robot: Robot): number {
  const joints = [link.joint, ...link.children.map((child) => robot.links[child].joint)];
  const places = joints.flatMap((joint) => (joint === null ? [] : [[joint.pose[3], joint.pose[7], joint.pose[11]]]));
  return Math.max(...[...places, link.data.mass?.com ?? [0, 0, 0]].map(([x, y, z]) => Math.hypot(x, y, z)));
}

/** How far the links' origins are apart. */
function extentOf(poses: Float64Array): number {
  const bounds = new Box3();
  for (let i = 0; i < poses.length; i += poseSize) {
    bounds.expandByPoint(new Vector3(poses[i + 3], poses[i + 7], poses[i + 11]));
  }
  return Math.max(bounds.getSize(new Vector3()).length(), 0.05);
}

/** In the frame of the object's parent. */
function boundsOf(object: Object3D): Box3 {
  const bounds = new Box3();
  object.updateWorldMatrix(true, true);
  const toParent = object.parent === null ? null : object.parent.matrixWorld.clone().invert();
  forEachMesh(object, (mesh) => {
    mesh.geometry.computeBoundingBox();
    const box = mesh.geometry.boundingBox?.clone().applyMatrix4(mesh.matrixWorld);
    if (box !== undefined && !box.isEmpty()) {
      bounds.union(toParent === null ? box : box.applyMatrix4(toParent));
    }
  });
  return bounds;
}
