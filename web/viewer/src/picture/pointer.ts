import { Object3D, Raycaster, Vector2, Vector3 } from 'three';
import type { Configuration } from '../configuration';
import type { Joint } from '../robot';
import { matrixAt } from './matrix';
import type { Picture } from './picture';

/** A body that is being moved: the joint, and the point by which it was taken, in the frame of the link. */
interface Grip {
  readonly joint: Joint;
  readonly link: number;
  readonly point: Vector3;
}

interface Hit {
  readonly link: number | null;
  readonly label: string | null;
  readonly point: Vector3;
}

/** So many pixels make a click a drag. */
const slack = 4;

/** What the pointer does in the picture: it hovers, chooses, and drags bodies about their joints. */
export class Pointer {
  private readonly raycaster = new Raycaster();
  private grip: Grip | null = null;
  private down: Vector2 | null = null;
  private last = new Vector2();
  private hoverEvent: PointerEvent | null = null;

  /** `tell` gets the text for what is under the pointer, null for nothing. */
  constructor(
    private readonly picture: Picture,
    private readonly configuration: Configuration,
    private readonly tell: (text: string | null, x: number, y: number) => void,
  ) {
    const { canvas } = picture.stage;
    this.raycaster.params.Line.threshold = 0;
    // Before the camera's controls get to know of it.
    canvas.parentElement?.addEventListener('pointerdown', (event) => { this.press(event); }, { capture: true });
    canvas.addEventListener('pointermove', (event) => { this.move(event); });
    canvas.addEventListener('pointerup', (event) => { this.release(event); });
    canvas.addEventListener('pointercancel', () => { this.letGo(); });
    canvas.addEventListener('pointerleave', () => { this.leave(); });
  }

  private press(event: PointerEvent): void {
    if (event.target !== this.picture.stage.canvas || event.button !== 0 || !event.isPrimary) {
      return;
    }
    this.down = new Vector2(event.clientX, event.clientY);
    this.last.copy(this.down);
    const hit = this.hitAt(event);
    this.grip = hit === null || hit.link === null ? null : this.gripOn(hit.link, hit.point);
    if (this.grip !== null) {
      this.picture.stage.controls.enabled = false;
      this.picture.stage.canvas.setPointerCapture(event.pointerId);
    }
  }

  private move(event: PointerEvent): void {
    const at = new Vector2(event.clientX, event.clientY);
    if (this.grip !== null && this.down !== null) {
      if (at.distanceTo(this.down) >= slack) {
        this.drag(this.grip, at.clone().sub(this.last));
        this.last.copy(at);
      }
    } else if (event.buttons === 0) {
      this.hoverSoon(event);
    }
  }

  private release(event: PointerEvent): void {
    const isClick = this.down !== null && this.down.distanceTo(new Vector2(event.clientX, event.clientY)) < slack;
    this.letGo();
    if (isClick) {
      this.picture.selection.select(this.hitAt(event)?.link ?? null);
    }
  }

  private letGo(): void {
    this.down = null;
    this.grip = null;
    this.picture.stage.controls.enabled = true;
  }

  private leave(): void {
    this.hoverEvent = null;
    this.picture.selection.hover(null);
    this.tell(null, 0, 0);
  }

  /** Once for each frame of the screen is enough. */
  private hoverSoon(event: PointerEvent): void {
    const isWaiting = this.hoverEvent !== null;
    this.hoverEvent = event;
    if (!isWaiting) {
      requestAnimationFrame(() => {
        if (this.hoverEvent !== null) {
          this.hover(this.hoverEvent);
        }
        this.hoverEvent = null;
      });
    }
  }

  private hover(event: PointerEvent): void {
    const hit = this.hitAt(event);
    this.picture.selection.hover(hit?.link ?? null);
    this.tell(hit?.label ?? null, event.clientX, event.clientY);
  }

  private hitAt(event: PointerEvent): Hit | null {
    const { canvas, camera, root } = this.picture.stage;
    const box = canvas.getBoundingClientRect();
    const x = ((event.clientX - box.left) / box.width) * 2 - 1;
    const y = 1 - ((event.clientY - box.top) / box.height) * 2;
    this.raycaster.setFromCamera(new Vector2(x, y), camera);
    for (const { object, point } of this.raycaster.intersectObject(root, true)) {
      const device = object.userData.label as string | undefined;
      if (device !== undefined && isShown(object)) {
        return { link: null, label: device, point };
      }
      const link = linkOf(object);
      if (link !== null) {
        return { link, label: this.labelOf(link), point };
      }
    }
    return null;
  }

  private labelOf(index: number): string {
    const link = this.picture.robot.links[index];
    return link.joint === null ? link.label : `${link.label} · ${link.joint.data.name}`;
  }

  /** The nearest joint towards the root that moves. */
  private gripOn(link: number, point: Vector3): Grip | null {
    const { robot, figure } = this.picture;
    const inLink = figure.frames[link].worldToLocal(point.clone());
    for (let at: number | null = link; at !== null; at = robot.links[at].parent) {
      const { joint } = robot.links[at];
      if (joint !== null && joint.drive.motion !== 'none' && joint.drive.variable !== null && joint.drive.ratio !== 0) {
        return { joint, link, point: inLink };
      }
    }
    return null;
  }

  /** Moves the joint so that the point follows the pointer, as well as one joint can. */
  private drag({ joint, link, point }: Grip, pixels: Vector2): void {
    const { robot, figure, stage } = this.picture;
    const { variable, ratio, motion } = joint.drive;
    const parent = robot.links.find((each) => each.data.name === joint.data.parentLink)?.index;
    if (variable === null || parent === undefined) {
      return;
    }
    stage.root.updateMatrixWorld(true);
    const frame = figure.frames[parent].matrixWorld.clone().multiply(matrixAt(joint.pose));
    const axis = new Vector3().setFromMatrixColumn(frame, 2).normalize();
    const at = figure.frames[link].localToWorld(point.clone());
    const velocity = motion === 'slides' ? axis : axis.clone().cross(at.clone().sub(new Vector3().setFromMatrixPosition(frame)));
    const small = stage.robotSize * 1e-4 / Math.max(velocity.length(), 1e-9);
    const onScreen = this.project(at.clone().addScaledVector(velocity, small)).sub(this.project(at)).divideScalar(small);
    // A joint that is seen edge-on hardly moves on the screen, and must not leap.
    const least = (stage.canvas.clientHeight / 8) ** 2 * (motion === 'slides' ? stage.robotSize ** -2 : 1);
    const change = pixels.dot(onScreen) / Math.max(onScreen.lengthSq(), least);
    this.configuration.set(variable, this.configuration.values[variable] + change / ratio);
  }

  /** In pixels. */
  private project(point: Vector3): Vector2 {
    const { canvas, camera } = this.picture.stage;
    const { x, y } = point.project(camera);
    return new Vector2((x * canvas.clientWidth) / 2, (-y * canvas.clientHeight) / 2);
  }
}

function linkOf(object: Object3D): number | null {
  for (let at: Object3D | null = object; at !== null; at = at.parent) {
    if (at.userData.link !== undefined) {
      return at.userData.link as number;
    }
  }
  return null;
}

function isShown(object: Object3D): boolean {
  for (let at: Object3D | null = object; at !== null; at = at.parent) {
    if (!at.visible) {
      return false;
    }
  }
  return true;
}
