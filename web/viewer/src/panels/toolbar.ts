import type { Robot } from '../robot';
import type { Settings } from '../settings';
import { button, checkbox, element } from './element';

/** The line on top: the robot's name and how to look at it. */
export function toolbar(robot: Robot, settings: Settings, frameAll: () => void, help: () => void): HTMLElement {
  const { dump, file } = robot.data;
  const units = button('', 'Units of angles (u)', () => { settings.set({ degrees: !settings.degrees }); });
  const upAxis = button('', 'Which axis points up (y)', () => { settings.set({ upAxis: settings.upAxis === 'z' ? 'y' : 'z' }); });
  const theme = button('', 'Light or dark (t)', () => { settings.set({ theme: settings.theme === 'light' ? 'dark' : 'light' }); });
  units.id = 'units';
  upAxis.id = 'up-axis';
  theme.id = 'theme';
  const update = () => {
    units.textContent = settings.degrees ? 'degrees' : 'rad';
    upAxis.textContent = `${settings.upAxis} up`;
    theme.textContent = settings.theme;
    document.documentElement.dataset.theme = settings.theme;
  };
  settings.changed.listen(update);
  update();
  return element(
    'header',
    {},
    element('h1', { textContent: dump.prettyName || dump.name || file, title: file }),
    checkbox('Hide fixed joints', false, (fixedHidden) => { settings.set({ fixedHidden }); }),
    units,
    upAxis,
    theme,
    button('Fit', 'See all of the robot (f)', frameAll),
    button('?', 'Keys (?)', help),
  );
}
