import { element } from './element';

/** A key with what it does. */
export interface Shortcut {
  readonly key: string;
  readonly meaning: string;
  readonly action: () => void;
}

/** Listens to the keys, except where text is entered. The answer shows which there are. */
export function keyboard(shortcuts: readonly Shortcut[]): HTMLDialogElement {
  const byKey = new Map(shortcuts.map((shortcut) => [shortcut.key, shortcut]));
  document.addEventListener('keydown', (event) => {
    const shortcut = byKey.get(event.key);
    const isTyping = (event.target as Element).matches?.('input, textarea, select') && event.key !== 'Escape';
    if (shortcut !== undefined && !isTyping && !event.ctrlKey && !event.metaKey && !event.altKey) {
      event.preventDefault();
      shortcut.action();
    }
  });
  const rows = shortcuts.flatMap(({ key, meaning }) => [
    element('dt', {}, element('kbd', { textContent: key })),
    element('dd', { textContent: meaning }),
  ]);
  return element(
    'dialog',
    {},
    element('h2', { textContent: 'Keys' }),
    element('dl', {}, ...rows),
    element('p', { textContent: 'Drag a body to move its joint, the ground to turn the view.' }),
    element('form', { method: 'dialog' }, element('button', { textContent: 'Close' })),
  );
}
