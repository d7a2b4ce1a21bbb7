/** Calls those who listen. */
export class Signal<Value = void> {
  private readonly listeners: ((value: Value) => void)[] = [];

  listen(listener: (value: Value) => void): void {
    this.listeners.push(listener);
  }

  emit(value: Value): void {
    for (const listener of this.listeners) {
      listener(value);
    }
  }
}
