import type { Configuration } from '../configuration';
import type { Variable } from '../data';
import { valueOf } from '../kinematics';
import type { Joint, Robot } from '../robot';
import type { Selection } from '../selection';
import type { Settings } from '../settings';
import { read, shown, text, unitOf } from '../units';
import { checkbox, element } from './element';

/** What a slider reaches where there is no limit (rad, m). */
const reach = { turns: Math.PI, slides: 1 };

/** A row of the panel: one variable. */
class Slider {
  readonly row: HTMLDivElement;
  /** Joints that move along, with their values as text. */
  private readonly followers: { joint: Joint; output: HTMLElement }[];
  private readonly range = element('input', { type: 'range', step: 'any' });
  private readonly number = element('input', { type: 'number', step: 'any' });
  private readonly unit = element('span', { className: 'unit' });
  private shownValue = NaN;

  constructor(
    private readonly variable: Variable,
    private readonly index: number,
    joints: readonly Joint[],
    private readonly configuration: Configuration,
    private readonly settings: Settings,
  ) {
    this.followers = joints
      .filter((joint) => joint.data.name !== variable.name)
      .map((joint) => ({ joint, output: element('span', { className: 'value' }) }));
    this.range.ariaLabel = this.number.ariaLabel = variable.name;
    this.range.addEventListener('input', () => { this.enter(this.range.valueAsNumber); });
    this.number.addEventListener('change', () => { this.enter(this.number.valueAsNumber); });
    const followers = this.followers.map(({ joint, output }) =>
      element('span', { className: 'follower' }, element('span', { textContent: joint.data.name }), output),
    );
    this.row = element(
      'div',
      { className: 'slider' },
      element('span', { className: 'name', textContent: variable.name, title: variable.name }),
      this.number,
      this.unit,
      this.range,
      element('div', { className: 'followers' }, ...followers),
    );
    this.obeySettings();
  }

  obeySettings(): void {
    const { slides } = this.variable;
    const { degrees } = this.settings;
    const [low, high] = this.ends();
    this.range.min = String(shown(low, slides, degrees));
    this.range.max = String(shown(high, slides, degrees));
    this.unit.textContent = unitOf(slides, degrees);
    this.shownValue = NaN;
    this.update();
  }

  update(): void {
    const { slides, min, max } = this.variable;
    const value = this.configuration.values[this.index];
    if (value === this.shownValue) {
      return;
    }
    this.shownValue = value;
    const { degrees } = this.settings;
    this.range.value = String(shown(value, slides, degrees));
    this.number.value = text(value, slides, degrees);
    this.row.classList.toggle('outside', value < (min ?? -Infinity) || value > (max ?? Infinity));
    for (const { joint, output } of this.followers) {
      output.textContent = text(valueOf(joint, this.configuration.values), joint.drive.motion === 'slides', degrees);
    }
  }

  private enter(number: number): void {
    if (Number.isFinite(number)) {
      this.configuration.set(this.index, read(number, this.variable.slides, this.settings.degrees));
    }
    this.shownValue = NaN;
    this.update();
  }

  private ends(): [number, number] {
    const { slides } = this.variable;
    const far = slides ? reach.slides : reach.turns;
    const min = this.variable.min ?? -far;
    const max = this.variable.max ?? far;
    const more = this.configuration.limitsBind ? 0 : Math.max(max - min, slides ? 0.1 : Math.PI);
    return [min - more, max + more];
  }
}

/** A slider for each variable. */
export class Sliders {
  readonly box: HTMLDivElement;
  private readonly sliders: readonly Slider[];

  constructor(
    private readonly robot: Robot,
    configuration: Configuration,
    private readonly selection: Selection,
    settings: Settings,
  ) {
    const joints = jointsByVariable(robot);
    this.sliders = configuration.variables.map(
      (variable, i) => new Slider(variable, i, joints[i], configuration, settings),
    );
    const ignore = checkbox('Ignore limits', false, (checked) => { configuration.limitsBind = !checked; });
    this.box = element('div', { className: 'sliders' }, ignore, ...this.sliders.map(({ row }) => row));
    this.sliders.forEach(({ row }, i) => { this.tie(row, joints[i]); });
    configuration.changed.listen(() => { this.sliders.forEach((slider) => { slider.update(); }); });
    const obey = () => { this.sliders.forEach((slider) => { slider.obeySettings(); }); };
    configuration.limitsChanged.listen(obey);
    settings.changed.listen(obey);
  }

  /** Links in picture and tree light up with their sliders, and the other way about. */
  private tie(row: HTMLElement, joints: readonly Joint[]): void {
    const links = joints.flatMap((joint) => this.robot.linkOf(joint)?.index ?? []);
    row.addEventListener('pointerenter', () => { this.selection.hover(links[0] ?? null); });
    row.addEventListener('pointerleave', () => { this.selection.hover(null); });
    row.addEventListener('focusin', () => {
      if (!links.includes(this.selection.selected ?? -1)) {
        this.selection.select(links[0] ?? null);
      }
    });
    let wasSelected = false;
    this.selection.changed.listen(() => {
      const isSelected = links.includes(this.selection.selected ?? -1);
      row.classList.toggle('hovered', links.includes(this.selection.hovered ?? -1));
      row.classList.toggle('selected', isSelected);
      if (isSelected && !wasSelected && !row.contains(document.activeElement)) {
        row.scrollIntoView({ block: 'nearest' });
      }
      wasSelected = isSelected;
    });
  }
}

function jointsByVariable(robot: Robot): Joint[][] {
  const joints: Joint[][] = robot.data.variables.map(() => []);
  for (const joint of robot.joints) {
    if (joint.drive.motion !== 'none' && joint.drive.variable !== null) {
      joints[joint.drive.variable].push(joint);
    }
  }
  return joints;
}
