import { readFileSync } from 'node:fs';
import { pathToFileURL } from 'node:url';
import puppeteer, { type Browser, type Page } from 'puppeteer-core';
import type { Viewer } from '../src/main';

/** A page in a browser, and what it did that no page should do. */
export interface OpenPage {
  readonly page: Page;
  /** Errors on its console, exceptions, and requests other than for itself. */
  readonly offences: string[];
}

/** Debian's chromium, without a screen and without a graphics card. */
export function openBrowser(): Promise<Browser> {
  return puppeteer.launch({
    executablePath: process.env.CHROMIUM ?? '/usr/bin/chromium',
    headless: true,
    args: ['--no-sandbox', '--use-angle=swiftshader', '--enable-unsafe-swiftshader', '--hide-scrollbars'],
  });
}

export async function openPage(browser: Browser, file: string, size = { width: 1200, height: 800 }): Promise<OpenPage> {
  const page = await browser.newPage();
  await page.setViewport(size);
  const offences: string[] = [];
  const url = pathToFileURL(file).href;
  page.on('console', (message) => {
    if (message.type() === 'error') offences.push(`console: ${message.text()}`);
  });
  page.on('pageerror', (error) => offences.push(`exception: ${String(error)}`));
  page.on('dialog', (dialog) => {
    offences.push(`dialog: ${dialog.message()}`);
    void dialog.dismiss();
  });
  page.on('request', (request) => {
    const isOwn = request.url() === url || /^(data|blob):/.test(request.url());
    if (!isOwn) offences.push(`request: ${request.url()}`);
  });
  await page.goto(url);
  await page.waitForFunction(() => window.viewer !== undefined);
  return { page, offences };
}

/** Asks the page's viewer something. */
export function ask<Answer>(page: Page, question: (viewer: Viewer) => Answer): Promise<Answer> {
  return page.evaluate(`(${question.toString()})(window.viewer)`) as Promise<Answer>;
}

/** The picture as it is on the screen, as an image that equals another one only if all pixels are equal. */
export async function picture(page: Page): Promise<string> {
  await page.evaluate(() => new Promise((resolve) => requestAnimationFrame(() => requestAnimationFrame(resolve))));
  const box = await page.$('main.picture');
  if (box === null) throw new Error('There is no picture.');
  return Buffer.from(await box.screenshot()).toString('base64');
}

export function readText(file: string): string {
  return readFileSync(file, 'utf8');
}
