import { Signal } from './signal';

export type UpAxis = 'z' | 'y';
export type Theme = 'light' | 'dark';

/** What the user chose of how to look at the robot. */
export class Settings {
  readonly changed = new Signal();
  private values = { degrees: false, upAxis: 'z' as UpAxis, theme: 'light' as Theme, fixedHidden: false };

  constructor(theme: Theme, degrees: boolean) {
    this.values.theme = theme;
    this.values.degrees = degrees;
  }

  get degrees(): boolean {
    return this.values.degrees;
  }
  get upAxis(): UpAxis {
    return this.values.upAxis;
  }
  get theme(): Theme {
    return this.values.theme;
  }
  /** Whether joints that do not move are left out of the tree. */
  get fixedHidden(): boolean {
    return this.values.fixedHidden;
  }

  set(values: Partial<Settings['values']>): void {
    this.values = { ...this.values, ...values };
    this.changed.emit();
  }
}
