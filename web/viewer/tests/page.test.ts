import assert from 'node:assert/strict';
import { after, test } from 'node:test';
import type { Page } from 'puppeteer-core';
import { ask, openBrowser, openPage, picture } from './browser';
import { otherRobots, ourRobot, ourRobots, pageOf, run, writeScratch } from './robots';

const browser = await openBrowser();
after(() => browser.close());

interface Dump {
  links: { name: string }[];
  joints: { name: string }[];
}

interface Poses {
  configuration: Record<string, number>;
  poses: { name: string; pose: number[] }[];
}

/** Values within the limits of the variables, or within a half-turn where there are none. */
function moveAtRandom(page: Page, seed: number): Promise<Record<string, number>> {
  return page.evaluate((start) => {
    let state = start;
    const random = () => {
      state = (state * 48271) % 2147483647;
      return state / 2147483647;
    };
    const { configuration } = window.viewer!;
    configuration.setAll(
      configuration.variables.map(({ min, max }) => (min ?? -3) + random() * ((max ?? 3) - (min ?? -3))),
    );
    return Object.fromEntries(configuration.variables.map(({ name }, i) => [name, configuration.values[i]]));
  }, seed);
}

function greatestDifference(poses: readonly number[], expected: readonly number[]): number {
  assert.equal(poses.length, expected.length);
  return Math.max(0, ...poses.map((value, i) => Math.abs(value - expected[i])));
}

test('each of our robots shows all it has, without an error and without a request', async () => {
  for (const file of ourRobots()) {
    const dump = JSON.parse(run('dump', file)) as Dump;
    const { configuration } = JSON.parse(run('pose', '--json', file)) as Poses;
    const { page, offences } = await openPage(browser, pageOf(file));
    assert.equal(await page.$$eval('.tree li', (rows) => rows.length), dump.links.length, file);
    assert.equal(await page.$$eval('.tree .joint:not(:empty)', (cells) => cells.length), dump.joints.length, file);
    assert.equal(await page.$$eval('.slider', (rows) => rows.length), Object.keys(configuration).length, file);
    assert.equal(await ask(page, ({ picture }) => picture?.figure.bodies.length), dump.links.length, file);
    for (const layer of await page.$$('[data-layer]')) {
      await layer.evaluate((button) => { (button as HTMLElement).click(); });
    }
    await picture(page);
    assert.deepEqual(offences, [], file);
    await page.close();
  }
});

test('the poses of links are those of varo-robot pose', { timeout: 120_000 }, async () => {
  const others = ['pr2.urdf', 'robotiq_2f_140.urdf', 'turtlebot3_waffle.urdf', 'anymal_c.urdf', 'allegro_left_hand.urdf'];
  for (const file of [ourRobot('humanoid.xml'), ourRobot('rover.xml'), ...otherRobots(others)]) {
    const { page } = await openPage(browser, pageOf(file));
    for (let seed = 1; seed <= 10; ++seed) {
      const values = await moveAtRandom(page, seed * 7919);
      const options = Object.entries(values).flatMap(([name, value]) => ['--joint', `${name}=${String(value)}`]);
      const { poses } = JSON.parse(run('pose', '--json', ...options, file)) as Poses;
      const shown = await ask(page, ({ kinematics }) => Array.from(kinematics.poses));
      const expected = poses.flatMap(({ pose }) => pose);
      assert.ok(greatestDifference(shown, expected) <= 1e-6, `${file}, posture ${String(seed)}`);
    }
    await page.close();
  }
});

test('shapes are as large as described, where they are described, in their colours', async () => {
  const shape = (geometry: string) => `<visual><origin xyz="1 2 3" rpy="0 1.5707963267948966 0"/><geometry>${geometry}</geometry>
    <material name="m"><color rgba="1 0 0 0.5"/></material></visual>`;
  for (const [geometry, size] of [
    ['<box size="1 2 3"/>', [3, 2, 1]],
    ['<cylinder radius="0.5" length="4"/>', [4, 1, 1]],
    ['<sphere radius="0.5"/>', [1, 1, 1]],
  ] as const) {
    const file = writeScratch('shape.urdf', `<robot name="r"><link name="l">${shape(geometry)}</link></robot>`);
    const { page, offences } = await openPage(browser, pageOf(file));
    const shown = await page.evaluate(() => {
      const { figure } = window.viewer!.picture!;
      const bounds = figure.bounds();
      const materials: unknown[] = [];
      figure.bodies[0].traverse((object) => {
        const { material } = object as { material?: { color: { getHex(): number }; opacity: number } };
        if (material !== undefined) materials.push([material.color.getHex(), material.opacity]);
      });
      const middle = bounds.max.clone().add(bounds.min).multiplyScalar(0.5);
      return { size: bounds.max.clone().sub(bounds.min).toArray(), middle: middle.toArray(), materials };
    });
    assert.deepEqual(shown.size.map((length) => Number(length.toFixed(4))), size, geometry);
    assert.deepEqual(shown.middle.map((length) => Number(length.toFixed(4))), [1, 2, 3], geometry);
    assert.deepEqual(shown.materials, [[0xff0000, 0.5]], geometry);
    assert.deepEqual(offences, []);
    await page.close();
  }
});

test('a slider moves the links and what follows; limits bind until they are ignored', async () => {
  const { page } = await openPage(browser, pageOf(ourRobot('humanoid.xml')));
  const enter = (name: string, value: string) =>
    page.$eval(`input[type=number][aria-label="${name}"]`, (input, text) => {
      (input as HTMLInputElement).value = text;
      input.dispatchEvent(new Event('change'));
    }, value);
  const valueAt = (name: string) =>
    page.evaluate((wanted) => {
      const { variables, values } = window.viewer!.configuration;
      return values[variables.findIndex((variable) => variable.name === wanted)];
    }, name);
  await enter('LHand', '0.5');
  assert.equal(await valueAt('LHand'), 0.5);
  const followers = await page.$$eval('.slider', (rows) =>
    rows.find((row) => row.querySelector('.name')?.textContent === 'LHand')?.querySelector('.followers')?.textContent ?? '');
  assert.match(followers, /LFore2\s*0\.430/); // 0.86 times the hand
  await enter('LHand', '9');
  assert.ok(Math.abs((await valueAt('LHand')) - 1.3) < 1e-6);
  await page.$eval('.sliders .check input', (input) => { (input as HTMLElement).click(); });
  await enter('LHand', '9');
  assert.equal(await valueAt('LHand'), 9);
  await page.$eval('#units', (button) => { (button as HTMLElement).click(); });
  await enter('LElbowBend', '-90');
  assert.ok(Math.abs((await valueAt('LElbowBend')) + Math.PI / 2) < 1e-9);
  await page.$eval('#reset', (button) => { (button as HTMLElement).click(); });
  assert.equal(await valueAt('LElbowBend'), 0);
  await page.close();
});

test('a range that is moved by hand poses as its number does', async () => {
  const { page } = await openPage(browser, pageOf(ourRobot('minimal.xml')));
  await page.focus('input[type=range]');
  const before = await ask(page, ({ kinematics }) => Array.from(kinematics.poses));
  await page.keyboard.press('ArrowRight');
  const after = await ask(page, ({ kinematics }) => Array.from(kinematics.poses));
  assert.notDeepEqual(after, before);
  await page.close();
});

test('the mirror button makes the mirror image, twice the same again', async () => {
  const { page } = await openPage(browser, pageOf(ourRobot('humanoid.xml')));
  await moveAtRandom(page, 4711);
  const values = () => ask(page, ({ configuration }) => Array.from(configuration.values));
  // Reflected about the plane between left and right, the left wrist stands where the right one stood.
  const wrists = () => ask(page, ({ robot, kinematics }) =>
    ['LWristTwistLink', 'RWristTwistLink'].map((name) => {
      const at = robot.links.findIndex(({ data }) => data.name === name) * 16;
      const torso = robot.links.findIndex(({ data }) => data.name === 'WaistTurnLink') * 16;
      const from = [3, 7, 11].map((i) => kinematics.poses[at + i] - kinematics.poses[torso + i]);
      const axis = (column: number) => [0, 4, 8].reduce((sum, row, i) => sum + kinematics.poses[torso + row + column] * from[i], 0);
      return [0, 1, 2].map(axis);
    }));
  const [before, [left, right]] = [await values(), await wrists()];
  await page.click('#mirror');
  const [mirroredLeft, mirroredRight] = await wrists();
  // The torso's frame is turned: whichever axis points sideways changes its sign, and no other.
  const sideways = left.findIndex((_, axis) => Math.abs(mirroredRight[axis] - left[axis]) > 1e-3);
  for (const [image, original] of [[mirroredLeft, right], [mirroredRight, left]]) {
    original.forEach((value, axis) => {
      assert.ok(Math.abs(image[axis] - (axis === sideways ? -value : value)) < 1e-5, `axis ${String(axis)}`);
    });
  }
  assert.notDeepEqual(await values(), before);
  await page.click('#mirror');
  assert.deepEqual(await values(), before);
  await page.close();
});

test('a posture is taken as varo-robot pose takes it, from its button and from the option', async () => {
  const file = ourRobot('humanoid.xml');
  const { poses } = JSON.parse(run('pose', '--json', '--posture', 'Crouch', file)) as Poses;
  const expected = poses.flatMap(({ pose }) => pose);
  const { page } = await openPage(browser, pageOf(file));
  await page.$$eval('.poses button', (buttons) => { buttons.find((button) => button.textContent === 'Crouch')?.click(); });
  assert.ok(greatestDifference(await ask(page, ({ kinematics }) => Array.from(kinematics.poses)), expected) <= 1e-6);
  await page.close();
  const { page: second } = await openPage(browser, pageOf(file, '--posture', 'Crouch'));
  assert.ok(greatestDifference(await ask(second, ({ kinematics }) => Array.from(kinematics.poses)), expected) <= 1e-6);
  await second.close();
});

test('each layer that the robot has something for changes the picture, and off it is as before', { timeout: 60_000 }, async () => {
  const { page } = await openPage(browser, pageOf(ourRobot('humanoid.xml')));
  const plain = await picture(page);
  const labels = await ask(page, ({ layers }) => layers.map(({ label }) => label));
  assert.equal(labels.length, 11);
  for (const label of labels) {
    const toggle = () => page.$eval(`[data-layer="${label}"]`, (button) => { (button as HTMLElement).click(); });
    await toggle();
    const hasNothing = label === 'Collisions' && (await ask(page, ({ robot }) => robot.links.every(({ collisions }) => collisions.length === 0)));
    if (!hasNothing) {
      assert.ok((await picture(page)) !== plain, `${label} shows nothing`);
    }
    await toggle();
    assert.ok((await picture(page)) === plain, `${label} leaves something`);
  }
  await page.close();
});

test('tree and picture point at the same link', async () => {
  const { page, offences } = await openPage(browser, pageOf(ourRobot('humanoid.xml')));
  const box = await (await page.$('main.picture canvas'))?.boundingBox();
  assert.ok(box);
  await page.mouse.move(box.x + box.width / 2, box.y + box.height * 0.4);
  let hovered: number | null = null;
  for (let y = 0.3; y < 0.8 && hovered === null; y += 0.02) {
    await page.mouse.move(box.x + box.width / 2, box.y + box.height * y);
    await picture(page);
    hovered = await ask(page, ({ selection }) => selection.hovered);
  }
  assert.notEqual(hovered, null);
  const name = await page.$eval('.tree li.hovered .link', (cell) => cell.textContent ?? '');
  assert.ok((await page.$eval('.tip', (tip) => tip.textContent ?? '')).startsWith(name));
  await page.mouse.down();
  await page.mouse.up();
  assert.equal(await page.$eval('.tree li[aria-selected=true] .link', (cell) => cell.textContent), name);
  const before = await ask(page, ({ configuration }) => Array.from(configuration.values));
  await page.$$eval('.tree li', (rows) => { rows.find((row) => row.textContent?.includes('LElbowBend'))?.click(); });
  const at = await page.evaluate(() => {
    const viewer = window.viewer!;
    const { camera, canvas } = viewer.picture!.stage;
    const link = viewer.robot.links.find(({ data }) => data.name === 'LWristTwistLink')!.index;
    viewer.picture!.stage.root.updateMatrixWorld(true);
    const point = camera.position.clone().setFromMatrixPosition(viewer.picture!.figure.frames[link].matrixWorld).project(camera);
    const box = canvas.getBoundingClientRect();
    return [box.left + ((point.x + 1) / 2) * box.width, box.top + ((1 - point.y) / 2) * box.height];
  });
  await page.mouse.move(at[0], at[1]);
  await page.mouse.down();
  await page.mouse.move(at[0] + 30, at[1] + 40, { steps: 5 });
  await page.mouse.up();
  assert.notDeepEqual(await ask(page, ({ configuration }) => Array.from(configuration.values)), before);
  assert.deepEqual(offences, []);
  await page.close();
});

test('keys do what the list of keys says', async () => {
  const { page } = await openPage(browser, pageOf(ourRobot('humanoid.xml')));
  await page.keyboard.press('/');
  await page.keyboard.type('elbow');
  assert.equal(await page.$$eval('.tree li:not([hidden])', (rows) => rows.length), 2);
  await page.keyboard.press('Enter');
  await page.keyboard.press('Escape');
  await page.keyboard.press('ArrowDown');
  await page.keyboard.press('ArrowDown');
  assert.equal(await page.$eval('[aria-selected=true] .joint', (cell) => cell.textContent), 'RElbowBend');
  await page.keyboard.press('ArrowRight');
  const moved = await ask(page, ({ configuration }) => configuration.values.some((value) => value !== 0));
  assert.ok(moved);
  await page.keyboard.press('0');
  assert.ok(await ask(page, ({ configuration }) => configuration.values.every((value) => value === 0)));
  await page.keyboard.press('t');
  await page.keyboard.press('?');
  assert.ok(await page.$eval('dialog', (dialog) => dialog.open));
  await page.close();
});

test('it fits a phone', async () => {
  const { page } = await openPage(browser, pageOf(ourRobot('humanoid.xml')), { width: 375, height: 700 });
  const widths = await page.evaluate(() => [document.documentElement.scrollWidth, window.innerWidth]);
  assert.ok(widths[0] <= widths[1], `${String(widths[0])} pixels wide`);
  const height = await page.$eval('main.picture canvas', (canvas) => canvas.clientHeight);
  assert.ok(height > 200);
  await page.close();
});
