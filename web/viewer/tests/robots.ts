import { execFileSync } from 'node:child_process';
import { existsSync, mkdtempSync, readdirSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { basename, join } from 'node:path';

/** The tool that is tested, and the robots that it is tested with. */
export const tool = required('VARO_ROBOT');
const robots = required('VARO_ROBOTS');
export const scratch = mkdtempSync(join(tmpdir(), 'varo-viewer-'));

function required(name: string): string {
  const value = process.env[name];
  if (value === undefined) throw new Error(`${name} is not set: scripts/test-viewer does it.`);
  return value;
}

/** All descriptions that we ship. */
export function ourRobots(): string[] {
  return readdirSync(robots).filter((name) => /\.(xml|urdf)$/.test(name)).map((name) => join(robots, name));
}

export function ourRobot(name: string): string {
  return join(robots, name);
}

/** Those of the folder that VARO_URDF_FOLDER names: none when there is no such folder. */
export function otherRobots(names: readonly string[]): string[] {
  const folder = process.env.VARO_URDF_FOLDER ?? '';
  return names.map((name) => join(folder, name)).filter((file) => folder !== '' && existsSync(file));
}

export function run(...options: string[]): string {
  return execFileSync(tool, options, { encoding: 'utf8', maxBuffer: 1 << 28, stdio: ['ignore', 'pipe', 'ignore'] });
}

/** The page of a robot. */
export function pageOf(description: string, ...options: string[]): string {
  const page = join(scratch, `${basename(description)}-${String(pages++)}.html`);
  run('view', '-o', page, ...options, description);
  return page;
}

let pages = 0;

export function writeScratch(name: string, text: string | Uint8Array): string {
  const file = join(scratch, name);
  writeFileSync(file, text);
  return file;
}
