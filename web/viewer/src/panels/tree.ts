import type { Link, Robot } from '../robot';
import type { Selection } from '../selection';
import type { Settings } from '../settings';
import { element } from './element';

/** The links as a tree, in step with the picture. */
export class Tree {
  readonly box = element('ul', { className: 'tree', ariaLabel: 'Links and joints' });

  private readonly rows: HTMLLIElement[] = [];
  private readonly folded = new Set<number>();
  private readonly texts: string[];
  private wanted = '';

  constructor(
    private readonly robot: Robot,
    private readonly selection: Selection,
    private readonly settings: Settings,
  ) {
    this.box.setAttribute('role', 'tree');
    this.texts = robot.links.map((link) => searched(link, robot));
    for (const link of robot.inTreeOrder) {
      this.rows[link.index] = this.rowOf(link);
      this.box.append(this.rows[link.index]);
    }
    this.box.addEventListener('keydown', (event) => { this.obey(event); });
    this.box.addEventListener('pointerleave', () => { selection.hover(null); });
    selection.changed.listen(() => { this.mark(); });
    settings.changed.listen(() => { this.showRows(); });
    this.showRows();
    this.mark();
  }

  /** Leaves only links in sight that have to do with the word. The answer is how many. */
  search(word: string): number {
    this.wanted = word.trim().toLowerCase();
    this.showRows();
    return this.shown().length;
  }

  /** Chooses the link that stands so many rows further. */
  step(rows: number): void {
    const shown = this.shown();
    const at = shown.findIndex((link) => link.index === this.selection.selected);
    const next = at < 0 ? 0 : Math.min(Math.max(at + rows, 0), shown.length - 1);
    if (shown[next] !== undefined) {
      this.selection.select(shown[next].index);
    }
  }

  private rowOf(link: Link): HTMLLIElement {
    const count = this.robot.data.findings.filter((finding) => finding.link === link.index && finding.severity !== 'note').length;
    const row = element(
      'li',
      { tabIndex: -1 },
      element('span', { className: 'fold', textContent: link.children.length > 0 ? '▾' : '' }),
      element('span', { className: 'link', textContent: link.label }),
      element('span', { className: 'joint', textContent: link.joint?.data.name ?? '' }),
    );
    if (count > 0) {
      row.append(element('span', { className: 'badge', textContent: String(count), title: 'Findings' }));
    }
    row.setAttribute('role', 'treeitem');
    row.setAttribute('aria-level', String(link.depth + 1));
    row.style.paddingInlineStart = `${String(Math.min(link.depth, 24) * 0.7 + 0.2)}rem`;
    row.addEventListener('pointerenter', () => { this.selection.hover(link.index); });
    row.addEventListener('click', (event) => {
      if ((event.target as Element).className === 'fold') {
        this.fold(link.index, !this.folded.has(link.index));
      } else {
        this.selection.select(link.index);
      }
    });
    return row;
  }

  private fold(link: number, folded: boolean): void {
    if (folded) {
      this.folded.add(link);
    } else {
      this.folded.delete(link);
    }
    this.showRows();
  }

  private showRows(): void {
    const underFolded = new Set<number>();
    for (const link of this.robot.inTreeOrder) {
      const { index, parent, joint } = link;
      const isCovered = parent !== null && (this.folded.has(parent) || underFolded.has(parent));
      if (isCovered) {
        underFolded.add(index);
      }
      const isFixed = joint !== null && joint.drive.motion === 'none';
      const row = this.rows[index];
      row.hidden =
        this.wanted === '' ? isCovered || (isFixed && this.settings.fixedHidden) : !this.texts[index].includes(this.wanted);
      if (link.children.length > 0) {
        row.setAttribute('aria-expanded', String(!this.folded.has(index)));
        row.children[0].textContent = this.folded.has(index) ? '▸' : '▾';
      }
    }
  }

  private mark(): void {
    const { hovered, selected } = this.selection;
    this.rows.forEach((row, index) => {
      row.classList.toggle('hovered', index === hovered);
      row.setAttribute('aria-selected', String(index === selected));
      row.tabIndex = index === (selected ?? this.robot.inTreeOrder[0].index) ? 0 : -1;
    });
    if (selected !== null) {
      this.unfoldTo(selected);
      this.rows[selected].scrollIntoView({ block: 'nearest' });
      if (this.box.contains(document.activeElement)) {
        this.rows[selected].focus();
      }
    }
  }

  private unfoldTo(link: number): void {
    for (let at = this.robot.links[link].parent; at !== null; at = this.robot.links[at].parent) {
      this.folded.delete(at);
    }
    this.showRows();
  }

  private shown(): Link[] {
    return this.robot.inTreeOrder.filter((link) => !this.rows[link.index].hidden);
  }

  private obey(event: KeyboardEvent): void {
    const { selected } = this.selection;
    const actions: Record<string, () => void> = {
      ArrowDown: () => { this.step(1); },
      ArrowUp: () => { this.step(-1); },
      Home: () => { this.step(-this.rows.length); },
      End: () => { this.step(this.rows.length); },
      ArrowLeft: () => { if (selected !== null) this.fold(selected, true); },
      ArrowRight: () => { if (selected !== null) this.fold(selected, false); },
    };
    if (Object.hasOwn(actions, event.key)) {
      actions[event.key]();
      event.preventDefault();
      event.stopPropagation();
    }
  }
}

/** All names that have to do with a link, in small letters. */
function searched(link: Link, robot: Robot): string {
  const { dump, sensorPlaces, actuatorPlaces } = robot.data;
  const names = [link.label, link.data.name, link.joint?.data.name ?? ''];
  dump.sensors.forEach((sensor, i) => {
    if (sensorPlaces[i]?.link === link.index) names.push(sensor.name);
  });
  dump.actuators.forEach((actuator, i) => {
    if (actuatorPlaces[i]?.link === link.index) names.push(actuator.name);
  });
  return names.join('\n').toLowerCase();
}
