import { element, section } from './element';

/** What the page should show and does not carry; null when nothing is amiss. */
export function missingSection(missing: ReadonlyMap<string, string>): HTMLElement | null {
  if (missing.size === 0) {
    return null;
  }
  const rows = [...missing].map(([uri, reason]) =>
    element('li', {}, element('span', { className: 'place', textContent: uri }), element('span', { textContent: reason })),
  );
  const made = section(
    `Not shown (${String(missing.size)})`,
    element('p', { className: 'quiet', textContent: 'Other shapes stand for these meshes.' }),
    element('ul', { className: 'findings missing' }, ...rows),
  );
  made.open = false;
  return made;
}
