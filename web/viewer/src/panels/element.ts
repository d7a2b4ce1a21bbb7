type Child = Node | string;

/** An element with properties and children. Text never becomes markup. */
export function element<Tag extends keyof HTMLElementTagNameMap>(
  tag: Tag,
  properties: Partial<HTMLElementTagNameMap[Tag]> = {},
  ...children: Child[]
): HTMLElementTagNameMap[Tag] {
  const made = document.createElement(tag);
  Object.assign(made, properties);
  made.append(...children);
  return made;
}

export function button(text: string, title: string, action: () => void): HTMLButtonElement {
  const made = element('button', { type: 'button', textContent: text, title });
  made.addEventListener('click', action);
  return made;
}

/** A part of the page that can be folded. */
export function section(title: string, ...children: Child[]): HTMLDetailsElement {
  return element('details', { open: true }, element('summary', { textContent: title }), ...children);
}

export function checkbox(text: string, checked: boolean, action: (checked: boolean) => void): HTMLLabelElement {
  const input = element('input', { type: 'checkbox', checked });
  input.addEventListener('change', () => {
    action(input.checked);
  });
  return element('label', { className: 'check' }, input, element('span', { textContent: text }));
}
