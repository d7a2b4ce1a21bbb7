import type { Finding } from '../data';
import type { Robot } from '../robot';
import type { Selection } from '../selection';
import { element } from './element';

/** What `check` says of the description; those about a link lead to it. */
export function findingList(robot: Robot, selection: Selection): HTMLElement {
  const { findings, file } = robot.data;
  if (findings.length === 0) {
    return element('p', { className: 'quiet', textContent: 'None.' });
  }
  return element('ul', { className: 'findings' }, ...findings.map((finding) => row(finding, file, selection)));
}

function row(finding: Finding, file: string, selection: Selection): HTMLLIElement {
  const place = finding.line === null ? file : `${file}:${String(finding.line)}:${String(finding.column)}`;
  const parts = [
    element('span', { className: 'severity', textContent: finding.severity }),
    element('span', { className: 'place', textContent: place }),
    element('span', { className: 'message', textContent: finding.message }),
    element('span', { className: 'hint', textContent: finding.hint }),
  ];
  const { link } = finding;
  if (link === null) {
    return element('li', { className: finding.severity }, ...parts);
  }
  const made = element('button', { type: 'button', title: 'Show the link' }, ...parts);
  made.addEventListener('click', () => { selection.select(link); });
  return element('li', { className: finding.severity }, made);
}
