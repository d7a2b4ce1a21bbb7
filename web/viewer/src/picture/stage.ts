import {
  AmbientLight,
  Box3,
  Color,
  DirectionalLight,
  GridHelper,
  Group,
  HemisphereLight,
  Matrix4,
  PerspectiveCamera,
  Scene,
  Sphere,
  Vector3,
  WebGLRenderer,
} from 'three';
import { OrbitControls } from 'three/addons/controls/OrbitControls.js';
import type { Settings } from '../settings';

const backgrounds = { light: 0xf4f5f7, dark: 0x16181d };
const gridColors = { light: [0xb9bec8, 0xdadde3], dark: [0x4a5060, 0x2a2e38] } as const;

/** Camera, lights, ground, and the frame of the robot's root. Draws when asked to, once for each frame of the screen. */
export class Stage {
  readonly camera = new PerspectiveCamera(40, 1, 0.01, 100);
  /** The frame of the robot's root. */
  readonly root = new Group();
  readonly controls: OrbitControls;
  /** Runs before each drawing. */
  beforeDrawing: () => void = () => undefined;

  private readonly scene = new Scene();
  private readonly renderer: WebGLRenderer;
  private ground: GridHelper | null = null;
  private size = 1;
  private isRequested = false;

  /** Throws where the browser has no WebGL. */
  constructor(
    private readonly box: HTMLElement,
    private readonly settings: Settings,
  ) {
    this.renderer = new WebGLRenderer({ antialias: true });
    this.renderer.setPixelRatio(Math.min(window.devicePixelRatio, 2));
    box.prepend(this.renderer.domElement);
    this.camera.up.set(0, 0, 1);
    this.controls = new OrbitControls(this.camera, this.renderer.domElement);
    this.controls.addEventListener('change', () => {
      this.request();
    });
    const sun = new DirectionalLight(0xffffff, 1.6);
    sun.position.set(3, -4, 6);
    this.scene.add(this.root, sun, new HemisphereLight(0xffffff, 0x8d8d99, 1.3), new AmbientLight(0xffffff, 0.5));
    this.fitToBox();
    new ResizeObserver(() => {
      this.fitToBox();
      this.draw(); // resizing has wiped the picture
    }).observe(box);
    settings.changed.listen(() => {
      this.obeySettings();
    });
  }

  get canvas(): HTMLCanvasElement {
    return this.renderer.domElement;
  }

  /** The robot's size (m), for what is drawn in proportion to it. */
  get robotSize(): number {
    return this.size;
  }

  request(): void {
    if (!this.isRequested) {
      this.isRequested = true;
      requestAnimationFrame(() => {
        this.draw();
      });
    }
  }

  draw(): void {
    this.isRequested = false;
    this.beforeDrawing();
    this.renderer.render(this.scene, this.camera);
  }

  /** Stands the robot on the ground, in view of the camera; the bounds are in the frame of its root. */
  frame(bounds: Box3): void {
    const sphere = bounds.getBoundingSphere(new Sphere());
    this.size = Math.max(sphere.radius * 2, 1e-3);
    this.turnRoot();
    const center = sphere.center.clone().applyMatrix4(this.root.matrix);
    const direction = new Vector3(1, -0.62, 0.42).normalize();
    const distance = this.distanceToSee(bounds, center, direction);
    this.controls.target.copy(center);
    this.camera.position.copy(center).addScaledVector(direction, distance);
    this.camera.near = distance / 200;
    this.camera.far = distance * 50;
    this.camera.updateProjectionMatrix();
    this.controls.update();
    this.layGround(bounds.clone().applyMatrix4(this.root.matrix).min.z);
    this.obeySettings();
  }

  /** From where all corners of the box are in view, with a margin. */
  private distanceToSee(bounds: Box3, center: Vector3, direction: Vector3): number {
    const upward = Math.tan(((this.camera.fov / 2) * Math.PI) / 180);
    const right = new Vector3(0, 0, 1).cross(direction).normalize();
    const up = direction.clone().cross(right);
    const distances = [0, 1, 2, 3, 4, 5, 6, 7].map((corner) => {
      const [x, y, z] = [1, 2, 4].map((bit) => (corner & bit) !== 0);
      const { min, max } = bounds;
      const at = new Vector3(x ? max.x : min.x, y ? max.y : min.y, z ? max.z : min.z);
      at.applyMatrix4(this.root.matrix).sub(center);
      const across = Math.abs(at.dot(right)) / (upward * this.camera.aspect);
      return Math.max(across, Math.abs(at.dot(up)) / upward) + at.dot(direction);
    });
    return Math.max(1.12 * Math.max(...distances), this.size * 0.5);
  }

  private fitToBox(): void {
    const { clientWidth: width, clientHeight: height } = this.box;
    if (width > 0 && height > 0) {
      this.camera.aspect = width / height;
      this.camera.updateProjectionMatrix();
      this.renderer.setSize(width, height);
    }
  }

  /** The picture's up is z; a robot whose up is y is turned. */
  private turnRoot(): void {
    this.root.matrixAutoUpdate = false;
    this.root.matrix.copy(
      this.settings.upAxis === 'z' ? new Matrix4() : new Matrix4().makeRotationX(Math.PI / 2),
    );
  }

  private layGround(height: number): void {
    const cell = 10 ** Math.round(Math.log10(this.size / 8));
    const cells = 2 * Math.ceil((this.size * 1.5) / cell);
    this.ground?.dispose();
    this.ground?.removeFromParent();
    const [axis, line] = gridColors[this.settings.theme];
    this.ground = new GridHelper(cell * cells, cells, axis, line);
    this.ground.rotation.x = Math.PI / 2;
    this.ground.position.z = height;
    this.scene.add(this.ground);
  }

  private obeySettings(): void {
    this.turnRoot();
    this.scene.background = new Color(backgrounds[this.settings.theme]);
    if (this.ground !== null) {
      this.layGround(this.ground.position.z);
    }
    this.request();
  }
}
