import { Color, Material } from 'three';
import type { Selection } from '../selection';
import type { Figure } from './figure';
import { forEachMesh } from './mesh_library';

/** A material with what most of three's materials have. */
type Shaded = Material & { color?: Color; emissive?: Color };

interface Coat {
  readonly material: Shaded;
  readonly color: Color | undefined;
  readonly emissive: Color | undefined;
  readonly opacity: number;
  readonly transparent: boolean;
}

const hoveredGlow = new Color(0x2b4a7a);
const selectedGlow = new Color(0x8a4b00);

/** The surfaces of the bodies: as described, in the colours of chains, seen through, lit up. */
export class Paint {
  /** Of each link, instead of its own; null for its own. */
  colors: readonly (Color | null)[] | null = null;
  isGhost = false;

  private readonly coats: readonly Coat[][];

  constructor(
    figure: Figure,
    private readonly selection: Selection,
  ) {
    this.coats = figure.bodies.map((body) => {
      const coats: Coat[] = [];
      forEachMesh(body, (mesh) => {
        for (const material of [mesh.material].flat() as Shaded[]) {
          coats.push({
            material,
            color: material.color?.clone(),
            emissive: material.emissive?.clone(),
            opacity: material.opacity,
            transparent: material.transparent,
          });
        }
      });
      return coats;
    });
  }

  apply(): void {
    this.coats.forEach((coats, link) => {
      for (const coat of coats) {
        this.applyTo(coat, link);
      }
    });
  }

  private applyTo(coat: Coat, link: number): void {
    const { material } = coat;
    const own = this.colors?.[link] ?? coat.color;
    if (own !== undefined) {
      material.color?.copy(own);
    }
    const glow = link === this.selection.selected ? selectedGlow : link === this.selection.hovered ? hoveredGlow : coat.emissive;
    if (glow !== undefined) {
      material.emissive?.copy(glow);
    }
    const isSeenThrough = this.isGhost || coat.transparent;
    if (material.transparent !== isSeenThrough) {
      material.transparent = isSeenThrough;
      material.needsUpdate = true;
    }
    material.opacity = this.isGhost ? Math.min(coat.opacity, 0.28) : coat.opacity;
    material.depthWrite = !isSeenThrough;
  }
}
