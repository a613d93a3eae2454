// Puts the parts together. Where to start reading:
//   connection.js   the line to the session, and which messages are not yet acknowledged
//   input.js        the order of everything the user does
//   keyboard.js     keys, by the rules in keys.js
//   desktop.js      the windows; layout.js and controls/ draw what is in them
import { Connection } from './connection.js';
import { Desktop } from './desktop.js';
import { Input } from './input.js';
import { Keyboard } from './keyboard.js';
import { MessageBox } from './message_box.js';
import { Notices } from './notices.js';
import { setLanguage } from './texts.js';

const notices = new Notices();
const connection = new Connection(notices);
const input = new Input(connection);
const desktop = new Desktop(document.getElementById('desktop'), input);
const box = new MessageBox(document.getElementById('message-box'), connection);
new Keyboard(desktop, box, input, notices);

// A failure of the page itself is told, not only noted where no user looks. One without an error is a
// remark of the browser's about its own layout.
addEventListener('error', ({ error }) => {
  if (error) notices.tell('failure');
});
input.holds = () => box.shown;
connection.onDrawing = (drawing) => {
  if (drawing.language) setLanguage(drawing.language);
  desktop.apply(drawing);
  if (drawing.box !== undefined) box.show(drawing.box);
  if (drawing.files) notices.offer(drawing.files.map(({ id, name }) => ({ name, address: connection.addressOf(id) })));
  // A message has the focus as long as it stands there.
  if (!box.shown) desktop.placeFocus();
};
connection.onIdle = () => input.proceed();
connection.start();
