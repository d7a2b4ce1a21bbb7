import { Group, Object3D } from 'three';
import type { Picture } from '../picture/picture';
import type { Link } from '../robot';

/** Something that can be shown or not, with a key that does it. */
export abstract class Layer {
  abstract readonly label: string;
  abstract readonly key: string;
  /** Whether it lies inside of bodies, so that these have to be seen through. */
  readonly isInside: boolean = false;
  private visible = false;

  constructor(protected readonly picture: Picture) {}

  get isVisible(): boolean {
    return this.visible;
  }

  show(visible: boolean): void {
    this.visible = visible;
    this.apply(visible);
    this.picture.stage.request();
  }

  /** The robot has moved. */
  update(): void {
    // Most of what is drawn moves with the links.
  }

  protected abstract apply(visible: boolean): void;
}

/** One that draws something in the frame of each link, when it is first shown. */
export abstract class LinkLayer extends Layer {
  private drawings: Group[] | null = null;

  protected apply(visible: boolean): void {
    if (visible && this.drawings === null) {
      this.drawings = this.picture.robot.links.map((link) => {
        const drawing = new Group();
        for (const object of this.draw(link)) {
          drawing.add(object);
        }
        this.picture.figure.frames[link.index].add(drawing);
        return drawing;
      });
    }
    for (const drawing of this.drawings ?? []) {
      drawing.visible = visible;
    }
  }

  /** In the frame of the link. */
  protected abstract draw(link: Link): Object3D[];
}
