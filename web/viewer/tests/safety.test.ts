import assert from 'node:assert/strict';
import { mkdirSync } from 'node:fs';
import { join } from 'node:path';
import { after, test } from 'node:test';
import { openBrowser, openPage, readText } from './browser';
import { pageOf, scratch, writeScratch } from './robots';

const browser = await openBrowser();
after(() => browser.close());

const escaped = (text: string) =>
  text.replaceAll('&', '&amp;').replaceAll('<', '&lt;').replaceAll('"', '&quot;');

const triangle = 'solid s\nfacet normal 0 0 1\nouter loop\nvertex 0 0 0\nvertex 1 0 0\nvertex 0 1 0\nendloop\nendfacet\nendsolid s\n';

function urdf(name: string, body: string): string {
  return `<robot name="${escaped(name)}"><link name="base">${body}</link></robot>`;
}

function meshBody(uri: string): string {
  return `<visual><geometry><mesh filename="${escaped(uri)}"/></geometry></visual>`;
}

interface Embedded {
  meshes: Record<string, { reason?: string; data?: string }>;
}

/** What the page carries, as it stands in the file. */
function dataIn(page: string): Embedded {
  const text = /<script type="application\/json" id="robot">([^<]*)<\/script>/.exec(readText(page))?.[1];
  assert.ok(text !== undefined, 'The data of the page ends before its element does.');
  return JSON.parse(text) as Embedded;
}

test('no name gets out of the data', async () => {
  const attacks = [
    '</script><script>alert(1)</script>',
    '<!--<script>',
    '--></script><img src=x onerror=alert(1)>',
    '"};alert(1);//',
    '<svg onload=alert(1)>',
    '__proto__',
    '\u2028\u2029${alert(1)}`@SCRIPT@ @ROBOT@',
  ];
  for (const attack of attacks) {
    const name = escaped(attack);
    const text = `<robotDescription name="${name}"><root name="${name}"/><joint name="j ${name}" min="-1" max="1" maxSpeed="1" maxTorque="1"/>
      <chain name="c ${name}" parent="${name}"><jointRef name="j ${name}"/></chain></robotDescription>`;
    const { page, offences } = await openPage(browser, pageOf(writeScratch('attack.xml', text)));
    assert.deepEqual(offences, [], attack);
    assert.equal(await page.$eval('h1', (title) => title.textContent), attack);
    assert.equal(await page.$$eval('script', (scripts) => scripts.length), 2, attack);
    assert.equal(await page.$$eval('img, svg, iframe', (elements) => elements.length), 0, attack);
    await page.$eval('.tree li:last-child', (row) => { (row as HTMLElement).click(); });
    await page.close();
  }
});

test('the policy of the page refuses what is not its own', async () => {
  const { page } = await openPage(browser, pageOf(writeScratch('plain.urdf', urdf('plain', ''))));
  const refused = await page.evaluate(async () => {
    const violations: string[] = [];
    document.addEventListener('securitypolicyviolation', (event) => violations.push(event.effectiveDirective));
    const script = document.createElement('script');
    script.textContent = 'window.foreign = true';
    document.body.append(script);
    const image = document.createElement('img');
    image.src = 'http://127.0.0.1:9/a.png';
    document.body.append(image);
    await fetch('http://127.0.0.1:9/').catch(() => undefined);
    await new Promise((resolve) => setTimeout(resolve, 100));
    return [...new Set(violations)].sort();
  });
  assert.deepEqual(refused, ['connect-src', 'img-src', 'script-src-elem']);
  assert.equal(await page.evaluate(() => 'foreign' in window), false);
  await page.close();
});

test('images come with a mesh only as images of its folder', () => {
  mkdirSync(join(scratch, 'painted'), { recursive: true });
  const pixel = Buffer.from('iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAYAAAAfFcSJAAAADUlEQVR42mNk+M9QDwADhgGAWjR9awAAAABJRU5ErkJggg==', 'base64');
  writeScratch('painted/skin.png', pixel);
  writeScratch('painted/notes.png', 'no image');
  writeScratch('elsewhere.png', pixel);
  writeScratch('painted/m.mtl', 'newmtl a\nmap_Kd skin.png\nmap_Ks notes.png\nmap_Ka ../elsewhere.png\n');
  writeScratch('painted/m.obj', 'mtllib m.mtl\nv 0 0 0\nv 1 0 0\nv 0 1 0\nusemtl a\nf 1 2 3\n');
  const page = pageOf(writeScratch('painted/robot.urdf', urdf('r', meshBody('m.obj'))));
  const { files } = dataIn(page).meshes['m.obj'] as unknown as { files: Record<string, unknown> };
  assert.deepEqual(Object.keys(files).sort(), ['m.mtl', 'skin.png']);
});

test('meshes of all formats show, and broken ones are told', async () => {
  mkdirSync(join(scratch, 'shapes'), { recursive: true });
  writeScratch('shapes/a.stl', triangle);
  writeScratch('shapes/b.obj', 'v 0 0 0\nv 1 0 0\nv 0 1 0\nf 1 2 3\n');
  writeScratch('shapes/c.dae', `<?xml version="1.0"?><COLLADA xmlns="http://www.collada.org/2005/11/COLLADASchema" version="1.4.1">
    <asset><unit name="centimetre" meter="0.01"/><up_axis>Y_UP</up_axis></asset>
    <library_geometries><geometry id="g"><mesh><source id="p"><float_array id="pa" count="9">0 0 0 100 0 0 0 100 0</float_array>
    <technique_common><accessor source="#pa" count="3" stride="3"><param name="X" type="float"/><param name="Y" type="float"/><param name="Z" type="float"/></accessor></technique_common></source>
    <vertices id="v"><input semantic="POSITION" source="#p"/></vertices>
    <triangles count="1"><input semantic="VERTEX" source="#v" offset="0"/><p>0 1 2</p></triangles></mesh></geometry></library_geometries>
    <library_visual_scenes><visual_scene id="s"><node><instance_geometry url="#g"/></node></visual_scene></library_visual_scenes>
    <scene><instance_visual_scene url="#s"/></scene></COLLADA>`);
  for (const [mesh, isShown] of [['a.stl', true], ['b.obj', true], ['c.dae', true], ['absent.stl', false]] as const) {
    const { page, offences } = await openPage(browser, pageOf(writeScratch('shapes/robot.urdf', urdf('r', meshBody(mesh)))));
    const size = await page.evaluate(() => {
      const bounds = window.viewer!.picture!.figure.bounds();
      return bounds.max.clone().sub(bounds.min).toArray();
    });
    const missing = await page.$$eval('.missing li', (rows) => rows.map((row) => row.textContent ?? ''));
    if (isShown) {
      assert.deepEqual(size.map((length) => Number(length.toFixed(5))), [1, 1, 0], mesh);
      assert.deepEqual(missing, [], mesh);
    } else {
      assert.ok(missing[0].startsWith(mesh));
      assert.ok(size[0] > 0);
    }
    assert.deepEqual(offences, [], mesh);
    await page.close();
  }
});
