import { Group, LoadingManager, Mesh, MeshStandardMaterial, Object3D, SRGBColorSpace, Texture, TextureLoader } from 'three';
import { ColladaLoader } from 'three/addons/loaders/ColladaLoader.js';
import { MTLLoader } from 'three/addons/loaders/MTLLoader.js';
import { OBJLoader } from 'three/addons/loaders/OBJLoader.js';
import { STLLoader } from 'three/addons/loaders/STLLoader.js';
import type { EmbeddedFile, MeshData, ViewData } from '../data';

type Embedded = Exclude<MeshData, { reason: string }>;

/** Takes the place of images that are not embedded: the page asks nobody for them. */
const noImage = 'data:image/gif;base64,R0lGODlhAQABAIAAAP///wAAACH5BAAAAAAALAAAAAABAAEAAAICRAEAOw==';

/** The meshes and images that the page carries, each read once. */
export class MeshLibrary {
  /** What cannot be shown, and why. */
  readonly missing = new Map<string, string>();

  private readonly meshes = new Map<string, Object3D | null>();
  private readonly textures = new Map<string, Texture | null>();

  /** `changed` is called when an image is there. */
  constructor(
    private readonly data: Pick<ViewData, 'meshes' | 'textures'>,
    private readonly changed: () => void,
  ) {}

  /** A mesh of its own; null when there is none, and then `missing` says why. */
  mesh(uri: string): Object3D | null {
    let mesh = this.meshes.get(uri);
    if (mesh === undefined) {
      mesh = this.read(uri);
      this.meshes.set(uri, mesh);
    }
    return mesh?.clone() ?? null;
  }

  texture(uri: string): Texture | null {
    let texture = this.textures.get(uri);
    if (texture === undefined) {
      const file = this.data.textures[uri] ?? { reason: 'The page does not carry it.' };
      if ('reason' in file) {
        this.missing.set(uri, file.reason);
        texture = null;
      } else {
        texture = new TextureLoader().load(urlOf(file), this.changed);
        texture.colorSpace = SRGBColorSpace;
      }
      this.textures.set(uri, texture);
    }
    return texture;
  }

  private read(uri: string): Object3D | null {
    const data = this.data.meshes[uri] ?? { reason: 'The page does not carry it.' };
    if ('reason' in data) {
      this.missing.set(uri, data.reason);
      return null;
    }
    try {
      return this.parse(data);
    } catch (error) {
      this.missing.set(uri, `It cannot be read: ${error instanceof Error ? error.message : String(error)}`);
      return null;
    }
  }

  private parse(data: Embedded): Object3D {
    const bytes = bytesOf(data.data);
    switch (data.format) {
      case 'stl': {
        const geometry = new STLLoader().parse(bytes.buffer as ArrayBuffer);
        if (geometry.getAttribute('position').count === 0) {
          throw new Error('there are no triangles in it');
        }
        return new Group().add(new Mesh(geometry, new MeshStandardMaterial({ name: unstated })));
      }
      case 'obj':
        return this.parseObj(data, new TextDecoder().decode(bytes));
      case 'dae':
        return this.parseCollada(data, new TextDecoder().decode(bytes));
    }
  }

  private parseObj(data: Embedded, text: string): Object3D {
    const loader = new OBJLoader();
    const library = Object.entries(data.files).find(([, file]) => file.type === 'model/mtl')?.[1];
    if (library !== undefined) {
      const materials = new MTLLoader(this.managerOf(data)).parse(new TextDecoder().decode(bytesOf(library.data)), '');
      materials.preload();
      loader.setMaterials(materials);
    }
    const group = loader.parse(text);
    if (library === undefined) {
      forEachMesh(group, (mesh) => {
        mesh.material = new MeshStandardMaterial({ name: unstated });
      });
    }
    return group;
  }

  private parseCollada(data: Embedded, text: string): Object3D {
    const result = new ColladaLoader(this.managerOf(data)).parse(text, '');
    if (result === null) {
      throw new Error('it is no COLLADA');
    }
    // Robots take the numbers as they stand, whichever axis the file calls up; its unit counts.
    result.scene.rotation.set(0, 0, 0);
    return new Group().add(result.scene);
  }

  /** Hands the loaders of meshes the images that the page carries, and no others. */
  private managerOf(data: Embedded): LoadingManager {
    const manager = new LoadingManager(this.changed);
    manager.setURLModifier((name) => {
      const file = Object.hasOwn(data.files, name) ? data.files[name] : undefined;
      return file === undefined ? noImage : urlOf(file);
    });
    return manager;
  }
}

/** The name of materials of meshes whose files state none. */
export const unstated = 'unstated';

export function forEachMesh(object: Object3D, visit: (mesh: Mesh) => void): void {
  object.traverse((each) => {
    if (each instanceof Mesh) {
      visit(each);
    }
  });
}

function bytesOf(base64: string): Uint8Array {
  const text = atob(base64);
  const bytes = new Uint8Array(text.length);
  for (let i = 0; i < text.length; ++i) {
    bytes[i] = text.charCodeAt(i);
  }
  return bytes;
}

function urlOf(file: EmbeddedFile): string {
  return `data:${file.type};base64,${file.data}`;
}
