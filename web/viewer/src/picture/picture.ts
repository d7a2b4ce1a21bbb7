import { Kinematics } from '../kinematics';
import type { Robot } from '../robot';
import type { Selection } from '../selection';
import type { Settings } from '../settings';
import { Figure } from './figure';
import { MeshLibrary } from './mesh_library';
import { Paint } from './paint';
import { Stage } from './stage';

/** All that layers and pointer need of the robot in 3D. */
export class Picture {
  readonly stage: Stage;
  readonly meshes: MeshLibrary;
  readonly figure: Figure;
  readonly paint: Paint;

  constructor(
    box: HTMLElement,
    readonly robot: Robot,
    readonly kinematics: Kinematics,
    readonly selection: Selection,
    settings: Settings,
  ) {
    this.stage = new Stage(box, settings);
    this.meshes = new MeshLibrary(robot.data, () => {
      this.stage.request();
    });
    this.figure = new Figure(robot, kinematics, this.meshes, this.stage.root);
    this.paint = new Paint(this.figure, selection);
    selection.changed.listen(() => {
      this.repaint();
    });
    let { upAxis } = settings;
    settings.changed.listen(() => {
      if (settings.upAxis !== upAxis) {
        upAxis = settings.upAxis;
        this.frameAll();
      }
    });
    this.frameAll();
  }

  frameAll(): void {
    this.stage.frame(this.figure.bounds());
  }

  repaint(): void {
    this.paint.apply();
    this.stage.request();
  }
}
