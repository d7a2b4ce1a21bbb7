import { Signal } from './signal';

/** The link under the pointer and the one that was chosen, by their places in the dump. */
export class Selection {
  readonly changed = new Signal();
  hovered: number | null = null;
  selected: number | null = null;

  hover(link: number | null): void {
    if (link !== this.hovered) {
      this.hovered = link;
      this.changed.emit();
    }
  }

  select(link: number | null): void {
    if (link !== this.selected) {
      this.selected = link;
      this.changed.emit();
    }
  }
}
