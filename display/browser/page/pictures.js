// The pictures of buttons and messages: drawn here, in the colour of the text around them.

const paths = {
  delete: 'M4 4l8 8M12 4l-8 8',
  document: 'M4 1.5h5.5L12.5 5v9.5h-8.5zM9 1.5V5.5h3.5M6 8.5h4.5M6 11h4.5',
  pick: 'M7 2.5a4.5 4.5 0 1 0 0 9 4.5 4.5 0 0 0 0-9zM10.3 10.3l3.7 3.7',
  more: 'M3 8h.8M7.6 8h.8M12.2 8h.8',
  tree: 'M8 1.5l3.5 4h-2l3 4h-9l3-4h-2zM8 9.5v5',
  calendar: 'M2.5 3.5h11v10h-11zM2.5 6.5h11M5.5 1.5v3M10.5 1.5v3',
  table: 'M2 3h12v10H2zM2 6.5h12M2 9.8h12M6 3v10',
  mail: 'M2 3.5h12v9H2zM2 4l6 5 6-5',
  add: 'M8 3v10M3 8h10',
  up: 'M3.5 10l4.5-4.5 4.5 4.5',
  down: 'M3.5 6l4.5 4.5L12.5 6',
  critical: 'M8 1.5a6.5 6.5 0 1 0 0 13 6.5 6.5 0 0 0 0-13zM5.5 5.5l5 5M10.5 5.5l-5 5',
  question: 'M8 1.5a6.5 6.5 0 1 0 0 13 6.5 6.5 0 0 0 0-13zM6 6.3a2 2 0 1 1 2.8 1.8c-.6.3-.8.6-.8 1.2M8 11.4v.2',
  exclamation: 'M8 1.8L15 14H1zM8 6v4M8 11.9v.2',
  information: 'M8 1.5a6.5 6.5 0 1 0 0 13 6.5 6.5 0 0 0 0-13zM8 7v4.2M8 4.6v.2',
};

const namespace = 'http://www.w3.org/2000/svg';

/** The picture of that name, or null. */
export function picture(name) {
  if (!Object.hasOwn(paths, name)) return null;
  const svg = document.createElementNS(namespace, 'svg');
  svg.setAttribute('viewBox', '0 0 16 16');
  svg.setAttribute('aria-hidden', 'true');
  svg.classList.add('picture');
  const path = document.createElementNS(namespace, 'path');
  path.setAttribute('d', paths[name]);
  svg.append(path);
  return svg;
}
