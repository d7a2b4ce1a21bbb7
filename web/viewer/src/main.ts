import { Configuration } from './configuration';
import { readData } from './data';
import { Kinematics } from './kinematics';
import type { Layer } from './layers/layer';
import { Layers } from './layers/layers';
import { mirrorPairs } from './mirror';
import { Details } from './panels/details';
import { element, section } from './panels/element';
import { findingList } from './panels/findings';
import { keyboard } from './panels/keyboard';
import { Legend } from './panels/legend';
import { missingSection } from './panels/missing';
import { Poses } from './panels/poses';
import { Sliders } from './panels/sliders';
import { toolbar } from './panels/toolbar';
import { Tree } from './panels/tree';
import { Picture } from './picture/picture';
import { Pointer } from './picture/pointer';
import { Robot } from './robot';
import { Selection } from './selection';
import { Settings } from './settings';
import { read } from './units';

/** What programs may use that open the page: tests and benchmarks do. */
export interface Viewer {
  readonly robot: Robot;
  readonly configuration: Configuration;
  readonly kinematics: Kinematics;
  readonly selection: Selection;
  readonly picture: Picture | null;
  readonly layers: readonly Layer[];
  /** Milliseconds of script to the first picture. */
  readonly startTime: number;
}

declare global {
  interface Window {
    viewer?: Viewer;
  }
}

function start(): void {
  const began = performance.now();
  const robot = new Robot(readData(document));
  const { data } = robot;
  document.title = `${data.dump.prettyName || data.dump.name} · varo-robot`;
  const configuration = new Configuration(data.variables, data.start);
  const kinematics = new Kinematics(robot);
  kinematics.update(configuration.values);
  const selection = new Selection();
  const isDark = window.matchMedia('(prefers-color-scheme: dark)').matches;
  const settings = new Settings(isDark ? 'dark' : 'light', data.degrees ?? false);

  const tree = new Tree(robot, selection, settings);
  const poses = new Poses(robot, configuration, mirrorPairs(robot));
  const found = element('output', { className: 'quiet' });
  const search = element('input', { type: 'search', placeholder: 'Search (/)', ariaLabel: 'Search by name' });
  search.addEventListener('input', () => {
    const count = tree.search(search.value);
    found.textContent = search.value === '' ? '' : `${String(count)} found`;
  });
  search.addEventListener('keydown', (event) => {
    if (event.key === 'Enter') tree.step(1);
  });

  const box = element('main', { className: 'picture' });
  const tip = element('div', { className: 'tip', hidden: true });
  box.append(tip);
  const left = element('aside', { className: 'left' }, element('div', { className: 'search' }, search, found), tree.box);
  const sliders = new Sliders(robot, configuration, selection, settings);
  const right = element(
    'aside',
    { className: 'right' },
    section('Pose', poses.box),
    section(`Joints (${String(data.variables.length)})`, sliders.box),
    section('About', new Details(robot, selection).box),
    section(`Findings (${String(data.findings.length)})`, findingList(robot, selection)),
  );
  const frameAll = () => picture?.frameAll();
  const header = toolbar(robot, settings, frameAll, () => { help.showModal(); });
  document.body.append(header, left, box, right);

  let picture: Picture | null = null;
  let layers: Layers | null = null;
  try {
    picture = new Picture(box, robot, kinematics, selection, settings);
    layers = new Layers(picture);
    right.prepend(section('Show', new Legend(layers, robot).box));
    new Pointer(picture, configuration, (text, x, y) => { tell(tip, box, text, x, y); });
  } catch (error) {
    box.append(element('p', { className: 'message', textContent: `There is no picture: this browser cannot draw in 3D (${String(error)}).` }));
  }
  const missing = missingSection(picture?.meshes.missing ?? new Map<string, string>());
  if (missing !== null) {
    right.append(missing);
  }

  configuration.changed.listen(() => {
    kinematics.update(configuration.values);
    picture?.figure.update();
    layers?.update();
    picture?.stage.request();
  });

  const moveSelected = (direction: number) => {
    const joint = selection.selected === null ? null : robot.links[selection.selected].joint;
    const variable = joint?.drive.variable ?? null;
    if (variable !== null) {
      const step = direction * (data.variables[variable].slides ? 0.01 : read(5, false, true));
      configuration.set(variable, configuration.values[variable] + step);
    }
  };
  const help = keyboard([
    { key: '/', meaning: 'search', action: () => { search.focus(); } },
    { key: 'Escape', meaning: 'choose nothing', action: () => { search.blur(); selection.select(null); } },
    { key: 'ArrowDown', meaning: 'choose the next link', action: () => { tree.step(1); } },
    { key: 'ArrowUp', meaning: 'choose the link before', action: () => { tree.step(-1); } },
    { key: 'ArrowRight', meaning: 'move the joint of the chosen link', action: () => { moveSelected(1); } },
    { key: 'ArrowLeft', meaning: 'move it back', action: () => { moveSelected(-1); } },
    { key: '0', meaning: 'reset', action: () => { configuration.reset(); } },
    { key: 'm', meaning: 'mirror the pose', action: () => { poses.mirror(); } },
    { key: 'f', meaning: 'see all of the robot', action: frameAll },
    { key: 'u', meaning: 'rad or degrees', action: () => { settings.set({ degrees: !settings.degrees }); } },
    { key: 'y', meaning: 'z or y up', action: () => { settings.set({ upAxis: settings.upAxis === 'z' ? 'y' : 'z' }); } },
    { key: 't', meaning: 'light or dark', action: () => { settings.set({ theme: settings.theme === 'light' ? 'dark' : 'light' }); } },
    ...(layers?.all ?? []).map((layer) => ({
      key: layer.key,
      meaning: layer.label.toLowerCase(),
      action: () => { layers?.show(layer, !layer.isVisible); },
    })),
    { key: '?', meaning: 'this list', action: () => { help.showModal(); } },
  ]);
  document.body.append(help);

  picture?.stage.draw();
  window.viewer = {
    robot,
    configuration,
    kinematics,
    selection,
    picture,
    layers: layers?.all ?? [],
    startTime: performance.now() - began,
  };
}

function tell(tip: HTMLElement, box: HTMLElement, text: string | null, x: number, y: number): void {
  tip.hidden = text === null;
  tip.textContent = text;
  const { left, top } = box.getBoundingClientRect();
  tip.style.left = `${String(x - left + 12)}px`;
  tip.style.top = `${String(y - top + 12)}px`;
}

start();
