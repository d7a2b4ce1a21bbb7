import type { Robot } from '../robot';
import type { Selection } from '../selection';
import { element } from './element';

/** The facts about the link that is chosen. */
export class Details {
  readonly box = element('dl', { className: 'details' });

  constructor(
    private readonly robot: Robot,
    private readonly selection: Selection,
  ) {
    let shown: number | null = -1;
    const update = () => {
      if (selection.selected !== shown) {
        shown = selection.selected;
        this.update();
      }
    };
    selection.changed.listen(update);
    update();
  }

  private update(): void {
    const { selected } = this.selection;
    const facts = selected === null ? this.ofRobot() : this.ofLink(selected);
    this.box.replaceChildren(
      ...facts
        .filter(([, value]) => value !== '')
        .flatMap(([name, value]) => [element('dt', { textContent: name }), element('dd', { textContent: value })]),
    );
  }

  private ofRobot(): [string, string][] {
    const { dump, variables } = this.robot.data;
    const mass = dump.links.reduce((sum, link) => sum + (link.mass?.mass ?? 0), 0);
    return [
      ['robot', dump.prettyName || dump.name],
      ['links', String(dump.links.length)],
      ['joints', `${String(dump.joints.length)}, with ${String(variables.length)} values`],
      ['mass', `${rounded(mass)} kg`],
      ['sensors', String(dump.sensors.length)],
      ['actuators', String(dump.actuators.length)],
    ];
  }

  private ofLink(index: number): [string, string][] {
    const { data, label, joint } = this.robot.links[index];
    const { dump, sensorPlaces, actuatorPlaces, chains, linkChains } = this.robot.data;
    const chain = linkChains[index];
    return [
      ['link', label],
      ['in the model', label === data.name ? '' : data.name],
      ['joint', joint === null ? 'none: the root' : `${joint.data.name}${joint.data.type === undefined ? '' : `, ${joint.data.type}`}`],
      ['chain', chain === null ? '' : chains[chain].name],
      ['mass', data.mass === null ? '' : `${rounded(data.mass.mass)} kg at ${data.mass.com.map(rounded).join(' ')}`],
      ['sensors', dump.sensors.filter((_, i) => sensorPlaces[i]?.link === index).map(({ name }) => name).join(', ')],
      ['actuators', dump.actuators.filter((_, i) => actuatorPlaces[i]?.link === index).map(({ name }) => name).join(', ')],
    ];
  }
}

function rounded(value: number): string {
  return String(Number(value.toPrecision(4)));
}
