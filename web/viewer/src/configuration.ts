import type { Variable } from './data';
import { Signal } from './signal';

/** Where the robot stands: a value (rad, or m) for each variable. */
export class Configuration {
  readonly values: Float64Array;
  readonly changed = new Signal();
  /** Whether limits bind. */
  readonly limitsChanged = new Signal();

  private bound = true;

  constructor(
    readonly variables: readonly Variable[],
    private readonly start: readonly number[],
  ) {
    this.values = Float64Array.from(start);
  }

  get limitsBind(): boolean {
    return this.bound;
  }

  set limitsBind(bind: boolean) {
    this.bound = bind;
    this.limitsChanged.emit();
    this.setAll(this.values);
  }

  set(variable: number, value: number): void {
    const allowed = this.allowed(variable, value);
    if (Number.isFinite(allowed) && allowed !== this.values[variable]) {
      this.values[variable] = allowed;
      this.changed.emit();
    }
  }

  setAll(values: ArrayLike<number>): void {
    this.variables.forEach((_, i) => {
      this.values[i] = this.allowed(i, values[i]);
    });
    this.changed.emit();
  }

  reset(): void {
    this.take(this.start);
  }

  /** Takes values as they are: a description may ask for them outside its own limits. */
  take(values: ArrayLike<number>): void {
    this.values.set(Array.from(values));
    this.changed.emit();
  }

  private allowed(variable: number, value: number): number {
    const { min, max } = this.variables[variable];
    return this.bound ? Math.min(Math.max(value, min ?? -Infinity), max ?? Infinity) : value;
  }
}
