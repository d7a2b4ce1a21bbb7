import { execFileSync } from 'node:child_process';
import { mkdtempSync, statSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import type { Browser } from 'puppeteer-core';
import { openBrowser, openPage } from '../tests/browser';

/** A serial robot, each link a box. */
function serialRobot(joints: number): string {
  const link = (i: number) => `<link name="l${String(i)}"><inertial><mass value="1"/><inertia ixx="0.01" iyy="0.01" izz="0.01" ixy="0" ixz="0" iyz="0"/></inertial>
    <visual><geometry><box size="0.05 0.05 0.1"/></geometry></visual></link>`;
  const joint = (i: number) => `<joint name="j${String(i)}" type="revolute"><parent link="l${String(i)}"/><child link="l${String(i + 1)}"/>
    <origin xyz="0 0 0.1"/><axis xyz="1 0 0"/><limit lower="-1" upper="1" effort="1" velocity="1"/></joint>`;
  const numbers = Array.from({ length: joints }, (_, i) => i);
  return `<robot name="serial">${link(0)}${numbers.map((i) => joint(i) + link(i + 1)).join('')}</robot>`;
}

function median(values: readonly number[]): number {
  return [...values].sort((a, b) => a - b)[Math.floor(values.length / 2)];
}

async function startTime(browser: Browser, file: string): Promise<number> {
  const { page } = await openPage(browser, file);
  const time = await page.evaluate(() => window.viewer!.startTime);
  await page.close();
  return time;
}

/** Of moving one joint in the middle: all script that it takes, the drawing calls included. */
async function moveTimes(browser: Browser, file: string): Promise<number[]> {
  const { page } = await openPage(browser, file);
  const times = await page.evaluate(() => {
    const { configuration, picture } = window.viewer!;
    const middle = Math.floor(configuration.variables.length / 2);
    return Array.from({ length: 200 }, (_, i) => {
      const began = performance.now();
      configuration.set(middle, 0.4 * Math.sin(i));
      picture!.stage.draw();
      return performance.now() - began;
    });
  });
  await page.close();
  return times;
}

const folder = mkdtempSync(join(tmpdir(), 'varo-bench-'));
const description = join(folder, 'serial.urdf');
const page = join(folder, 'serial.html');
const joints = 100;
writeFileSync(description, serialRobot(joints));
execFileSync(process.env.VARO_ROBOT ?? 'varo-robot', ['view', '-o', page, description], { stdio: ['ignore', 'ignore', 'inherit'] });
const browser = await openBrowser();
const starts: number[] = [];
for (let i = 0; i < 5; ++i) {
  starts.push(await startTime(browser, page));
}
const moves = await moveTimes(browser, page);
await browser.close();
console.log(`page of a robot with ${String(joints)} joints   ${(statSync(page).size / 1e6).toFixed(2)} MB`);
console.log(`script to the first picture, ms  ${median(starts).toFixed(0)} (least ${Math.min(...starts).toFixed(0)})`);
console.log(`slider move, ms                  ${median(moves).toFixed(2)} (least ${Math.min(...moves).toFixed(2)})`);
