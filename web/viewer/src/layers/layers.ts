import type { Picture } from '../picture/picture';
import { Signal } from '../signal';
import { Chains, Collisions, Visuals } from './bodies';
import { Lights, Sensors } from './devices';
import { Frames, JointAxes } from './frames';
import type { Layer } from './layer';
import { CentersOfMass, InertiaBoxes, LeadBalls } from './masses';
import { Mirrors } from './mirrors';

/** All that can be shown, in the order of its buttons. */
export class Layers {
  readonly all: readonly Layer[];
  readonly changed = new Signal();

  constructor(private readonly picture: Picture) {
    const kinds = [Visuals, Collisions, Frames, JointAxes, CentersOfMass, InertiaBoxes, LeadBalls, Sensors, Lights, Chains, Mirrors];
    this.all = kinds.map((Kind) => new Kind(picture));
    const isBare = picture.robot.links.every((link) => link.visuals.length === 0);
    for (const layer of this.all) {
      if (layer instanceof Visuals || layer instanceof Lights || (isBare && layer instanceof JointAxes)) {
        this.show(layer, true);
      }
    }
  }

  show(layer: Layer, visible: boolean): void {
    layer.show(visible);
    this.picture.paint.isGhost = this.all.some((each) => each.isVisible && each.isInside);
    this.picture.repaint();
    this.changed.emit();
  }

  update(): void {
    for (const layer of this.all) {
      layer.update();
    }
  }
}
