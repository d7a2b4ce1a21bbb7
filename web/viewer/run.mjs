// Bundles programs of this folder for node and runs them: node run.mjs [OPTION-OF-NODE...] FILE...
import { spawnSync } from 'node:child_process';
import { basename, dirname, join } from 'node:path';
import { fileURLToPath } from 'node:url';
import { build } from 'esbuild';

const here = dirname(fileURLToPath(import.meta.url));
const target = join(here, 'node_modules/.bundled'); // where node finds the packages
const sources = process.argv.slice(2).filter((word) => !word.startsWith('-'));
const options = process.argv.slice(2).filter((word) => word.startsWith('-'));
await build({
  entryPoints: sources.map((name) => join(here, name)),
  outdir: target,
  entryNames: '[name]',
  bundle: true,
  packages: 'external',
  platform: 'node',
  format: 'esm',
  outExtension: { '.js': '.mjs' },
});
const files = sources.map((name) => join(target, basename(name).replace(/\.ts$/, '.mjs')));
const { status } = spawnSync(process.execPath, [...options, ...files], { stdio: 'inherit' });
process.exit(status ?? 1);
