import type { Configuration } from '../configuration';
import { type MirrorPair, mirrored } from '../mirror';
import type { Robot } from '../robot';
import { poseOptions, quoted } from '../units';
import { button, element } from './element';

/** Where the whole robot goes at once: postures, reset, mirror image; and where it is, as text. */
export class Poses {
  readonly box: HTMLDivElement;
  private readonly words = element('textarea', { readOnly: true, rows: 4, ariaLabel: 'Joint values', spellcheck: false });

  constructor(
    private readonly robot: Robot,
    private readonly configuration: Configuration,
    private readonly pairs: readonly MirrorPair[],
  ) {
    const postures = robot.data.postures.map((posture) => {
      const made = button(posture.name, posture.reason, () => {
        if (posture.values !== null) {
          configuration.take(posture.values);
        }
      });
      made.disabled = posture.values === null;
      return made;
    });
    const mirror = button('Mirror this pose', 'Left becomes right (m)', () => { this.mirror(); });
    mirror.disabled = pairs.length === 0;
    mirror.id = 'mirror';
    const reset = button('Reset', 'As the page began (0)', () => { configuration.reset(); });
    reset.id = 'reset';
    const copy = button('Copy', 'Copy the joint values as they go to varo-robot pose', () => { this.copy(); });
    this.box = element(
      'div',
      { className: 'poses' },
      element('div', { className: 'buttons' }, reset, mirror, ...postures),
      this.words,
      copy,
    );
    configuration.changed.listen(() => { this.update(); });
    this.update();
  }

  mirror(): void {
    this.configuration.take(mirrored(this.configuration.values, this.pairs));
  }

  private update(): void {
    const { data } = this.robot;
    const options = poseOptions(data.variables, this.configuration.values);
    this.words.value = `varo-robot pose ${options}${options === '' ? '' : ' \\\n  '}${quoted(data.file)}`;
  }

  private copy(): void {
    this.words.select();
    document.execCommand('copy'); // works from files, too, where the newer way may not
  }
}
