import { Color, Mesh, MeshBasicMaterial, Object3D } from 'three';
import { forEachMesh } from '../picture/mesh_library';
import type { Link } from '../robot';
import { Layer, LinkLayer } from './layer';

export class Visuals extends Layer {
  readonly label = 'Visuals';
  readonly key = 'v';

  protected apply(visible: boolean): void {
    for (const body of this.picture.figure.bodies) {
      body.visible = visible;
    }
  }
}

export class Collisions extends LinkLayer {
  readonly label = 'Collisions';
  readonly key = 'c';
  override readonly isInside = true;

  protected draw(link: Link): Object3D[] {
    const { figure, stage } = this.picture;
    return link.collisions.map((shape) => {
      const object = figure.shapeOf(shape, link, stage.robotSize);
      forEachMesh(object, (mesh: Mesh) => {
        mesh.material = new MeshBasicMaterial({ color: 0xc2410c, wireframe: true, transparent: true, opacity: 0.55 });
      });
      return object;
    });
  }
}

/** The bodies in the colours in which `graph` draws them. */
export class Chains extends Layer {
  readonly label = 'Chains';
  readonly key = 'h';

  protected apply(visible: boolean): void {
    const { chains, linkChains } = this.picture.robot.data;
    this.picture.paint.colors = visible
      ? linkChains.map((chain) => (chain === null ? new Color(0x999999) : chainColor(chains[chain].hue)))
      : null;
    this.picture.repaint();
  }
}

export function chainColor(hue: number): Color {
  return new Color().setHSL(hue, 0.62, 0.55);
}
