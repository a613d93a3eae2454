// One drawer a control kind.
import { Button } from './button.js';
import { Chart } from './chart.js';
import { CheckBox } from './check_box.js';
import { ComboBox, ListBox } from './lists.js';
import { Gauges } from './gauges.js';
import { Grid } from './grid.js';
import { Frame, Label, ProgressBar } from './passive.js';
import { Tabs } from './tabs.js';
import { TextBox } from './text_box.js';
import { UpDown } from './up_down.js';

const views = {
  label: Label,
  text: TextBox,
  button: Button,
  check: CheckBox,
  combo: ComboBox,
  list: ListBox,
  grid: Grid,
  frame: Frame,
  tabs: Tabs,
  upDown: UpDown,
  chart: Chart,
  gauges: Gauges,
  progress: ProgressBar,
};

/** Makes what draws a control; it has no place yet, and nothing is drawn. */
export function createView(window, state) {
  return new views[state.kind](window, state);
}
