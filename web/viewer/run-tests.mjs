// Bundles each test and runs it with node's runner.
import { spawnSync } from 'node:child_process';
import { mkdirSync, readdirSync } from 'node:fs';
import { dirname, join } from 'node:path';
import { fileURLToPath } from 'node:url';
import { build } from 'esbuild';

const here = dirname(fileURLToPath(import.meta.url));
const target = join(here, 'node_modules/.viewer-tests');
mkdirSync(target, { recursive: true });
const tests = readdirSync(join(here, 'tests')).filter((name) => name.endsWith('.test.ts'));
await build({
  entryPoints: tests.map((name) => join(here, 'tests', name)),
  outdir: target,
  bundle: true,
  packages: 'external',
  platform: 'node',
  format: 'esm',
  outExtension: { '.js': '.mjs' },
});
const files = tests.map((name) => join(target, name.replace(/\.ts$/, '.mjs')));
const { status } = spawnSync(process.execPath, ['--test', ...process.argv.slice(2), ...files], { stdio: 'inherit' });
process.exit(status ?? 1);
