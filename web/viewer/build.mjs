// Bundles the page into one file that lacks only a robot: node build.mjs PAGE
import { createHash } from 'node:crypto';
import { mkdirSync, readFileSync, writeFileSync } from 'node:fs';
import { dirname, join } from 'node:path';
import { fileURLToPath } from 'node:url';
import { build } from 'esbuild';

const here = dirname(fileURLToPath(import.meta.url));
const source = join(here, 'src');
const target = process.argv[2];
if (target === undefined) {
  console.error('usage: node build.mjs PAGE');
  process.exit(2);
}

async function bundle(file) {
  const result = await build({
    entryPoints: [join(source, file)],
    bundle: true,
    minify: true,
    write: false,
    format: 'iife',
    target: 'es2022',
    legalComments: 'none',
    charset: 'ascii',
  });
  return result.outputFiles[0].text.trim();
}

const hashOf = (text) => `sha256-${createHash('sha256').update(text).digest('base64')}`;

const script = await bundle('main.ts');
const style = await bundle('viewer.css');
if (/<\/script|<!--/i.test(script) || /<\/style/i.test(style)) {
  throw new Error('The bundle would end the element that it stands in.');
}
const license = readFileSync(join(here, 'node_modules/three/LICENSE'), 'utf8').trim();
const parts = { LICENSE: license, SCRIPT_HASH: hashOf(script), STYLE_HASH: hashOf(style), STYLE: style, SCRIPT: script };
const page = readFileSync(join(source, 'page.html'), 'utf8').replace(/@(\w+)@/g, (marker, name) => parts[name] ?? marker);
if (page.split('@ROBOT@').length !== 2) {
  throw new Error('The place of the robot is not to be found.');
}
mkdirSync(dirname(target), { recursive: true });
writeFileSync(target, page);
console.log(`${target}: ${Buffer.byteLength(page)} bytes`);
