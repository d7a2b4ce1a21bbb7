import { chainColor } from '../layers/bodies';
import type { Layers } from '../layers/layers';
import { Chains } from '../layers/bodies';
import type { Robot } from '../robot';
import { button, element } from './element';

/** The buttons of the layers, and which colour is which chain while those are shown. */
export class Legend {
  readonly box: HTMLDivElement;

  constructor(layers: Layers, robot: Robot) {
    const buttons = layers.all.map((layer) => {
      const made = button(layer.label, `Show or hide (${layer.key})`, () => { layers.show(layer, !layer.isVisible); });
      made.dataset.layer = layer.label;
      return made;
    });
    const chains = element('ul', { className: 'chains' }, ...robot.data.chains.map(({ name, hue }) => {
      const sample = element('span', { className: 'sample' });
      sample.style.backgroundColor = `#${chainColor(hue).getHexString()}`;
      return element('li', {}, sample, element('span', { textContent: name }));
    }));
    this.box = element('div', {}, element('div', { className: 'buttons' }, ...buttons), chains);
    const update = () => {
      layers.all.forEach((layer, i) => { buttons[i].setAttribute('aria-pressed', String(layer.isVisible)); });
      chains.hidden = !layers.all.some((layer) => layer instanceof Chains && layer.isVisible);
    };
    layers.changed.listen(update);
    update();
  }
}
