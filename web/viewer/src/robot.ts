import type { Drive, JointData, LinkData, ShapeData, ViewData } from './data';

/** A link with its neighbours in the tree, all by their places in the dump. */
export interface Link {
  readonly index: number;
  readonly data: LinkData;
  /** What people call it. */
  readonly label: string;
  readonly parent: number | null;
  readonly joint: Joint | null;
  readonly children: number[];
  readonly depth: number;
  /** In its joint's frame; single-precision, as the model has it. */
  readonly pose: Float32Array;
  readonly visuals: readonly ShapeData[];
  readonly collisions: readonly ShapeData[];
}

export interface Joint {
  readonly index: number;
  readonly data: JointData;
  readonly drive: Drive;
  /** In its parent link's frame. */
  readonly pose: Float32Array;
}

/** The robot as the page asks it: the data, tied into a tree. */
export class Robot {
  readonly data: ViewData;
  readonly links: readonly Link[];
  readonly joints: readonly Joint[];
  /** The links from the root on, each before those that it carries, branch by branch. */
  readonly inTreeOrder: readonly Link[];

  private readonly jointsByName = new Map<string, Joint>();
  private readonly linksByJoint = new Map<Joint, Link>();

  constructor(data: ViewData) {
    this.data = data;
    this.joints = data.dump.joints.map((joint, index) => ({
      index,
      data: joint,
      drive: singlePrecision(data.drives[index]),
      pose: Float32Array.from(joint.localPosition),
    }));
    for (const joint of this.joints) {
      setIfNew(this.jointsByName, joint.data.name, joint);
    }
    this.links = this.tieLinks();
    for (const link of this.links) {
      if (link.joint !== null) {
        setIfNew(this.linksByJoint, link.joint, link);
      }
    }
    this.inTreeOrder = orderedFrom(this.links);
  }

  jointNamed(name: string | null): Joint | undefined {
    return name === null ? undefined : this.jointsByName.get(name);
  }

  /** The link that a joint moves. */
  linkOf(joint: Joint): Link | undefined {
    return this.linksByJoint.get(joint);
  }

  private tieLinks(): Link[] {
    const places = new Map<string, number>();
    this.data.dump.links.forEach((link, index) => {
      setIfNew(places, link.name, index);
    });
    const links: Link[] = [];
    this.data.dump.links.forEach((data, index) => {
      const joint = this.jointNamed(data.parentJoint) ?? null;
      const parent = joint === null ? null : (places.get(joint.data.parentLink ?? '') ?? null);
      links.push({
        index,
        data,
        label: data.descriptionName ?? data.name,
        parent,
        joint,
        children: [],
        depth: parent === null ? 0 : links[parent].depth + 1, // dumps list links before those that they carry
        pose: Float32Array.from(data.localPosition),
        visuals: visualsOf(data),
        collisions: data.collisions ?? [],
      });
      if (parent !== null) {
        links[parent].children.push(index);
      }
    });
    return links;
  }
}

/** The numbers stand as the shortest decimals that read back as the model's. */
function singlePrecision(drive: Drive): Drive {
  return { ...drive, ratio: Math.fround(drive.ratio), offset: Math.fround(drive.offset) };
}

function setIfNew<Key, Value>(map: Map<Key, Value>, key: Key, value: Value): void {
  if (!map.has(key)) {
    map.set(key, value);
  }
}

/** What is shown of a link: its visuals, or the one mesh of a dump that does not list them. */
function visualsOf(link: LinkData): readonly ShapeData[] {
  const stated = link.visuals ?? [];
  if (stated.length > 0 || link.visual === null || link.visual.meshPath === '') {
    return stated;
  }
  const geometry = { type: 'mesh', uri: link.visual.meshPath, scale: [1, 1, 1] } as const;
  return [{ name: '', pose: link.visual.meshTransform, geometry, material: null }];
}

function orderedFrom(links: readonly Link[]): Link[] {
  const ordered: Link[] = [];
  const waiting = links.filter((link) => link.parent === null).reverse();
  for (let link = waiting.pop(); link !== undefined; link = waiting.pop()) {
    ordered.push(link);
    for (let i = link.children.length; i-- > 0; ) {
      waiting.push(links[link.children[i]]);
    }
  }
  return ordered;
}
