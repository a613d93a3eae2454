// Numbers that are only shown, as they are read best. What is copied or typed has the hyphen of the keyboard.

/** A negative number with a minus and a space: "– 18,00". */
export function readable(text) {
  return text.replace(/^-(?=\d)/, '– ');
}

/** Nothing is there: it is drawn fainter than a quantity. */
export function isZero(text) {
  return /^0([.,]0+)?$/.test(text);
}
