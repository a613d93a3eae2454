// Where a card stands: beside the field that asked for it, or below or above it, never over it.
const distance = 8;

/** @param field the element of the control that has the focus below it; without one the middle */
export function placeCard(card, field) {
  const width = card.offsetWidth;
  const height = card.offsetHeight;
  const { left, top } = placeFor(field?.getBoundingClientRect(), { width, height });
  card.style.left = `${Math.round(left)}px`;
  // A notice may stand above the screens.
  card.style.top = `${Math.round(top - card.offsetParent.getBoundingClientRect().top)}px`;
}

function placeFor(field, { width, height }) {
  const room = { width: document.documentElement.clientWidth, height: document.documentElement.clientHeight };
  const inside = (start, length, all) => Math.max(distance, Math.min(start, all - length - distance));
  if (!field || field.width === 0) {
    return { left: inside((room.width - width) / 2, width, room.width), top: inside((room.height - height) / 2, height, room.height) };
  }
  const beside = [field.right + distance, field.left - distance - width]
    .find((left) => left >= distance && left + width + distance <= room.width);
  if (beside !== undefined) return { left: beside, top: inside(field.top - distance, height, room.height) };
  const left = inside(field.left, width, room.width);
  const below = field.bottom + distance;
  if (below + height + distance <= room.height) return { left, top: below };
  const above = field.top - distance - height;
  return { left, top: above >= distance ? above : inside(below, height, room.height) };
}
