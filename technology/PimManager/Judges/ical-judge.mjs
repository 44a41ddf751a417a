// node ical-judge.mjs: prints what ical.js reads in vCards and in jCards. It runs as a copy next to the installed
// ical.js.
import { createHash } from 'node:crypto';
import { readFileSync } from 'node:fs';
import ICAL from 'ical.js';

const nameParts = ['family', 'given', 'additional', 'prefix', 'suffix'];
const addressParts = ['postOfficeBox', 'extended', 'street', 'locality', 'region', 'postalCode', 'country'];

const textOf = (value) => (Array.isArray(value) ? value.map(textOf).join(',') : String(value ?? ''));
const partsOf = (names, value) =>
  Object.fromEntries(names.map((name, at) => [name, textOf(Array.isArray(value) ? value[at] : at ? '' : value)]));

function pictureOf(value) {
  if (!value.decodeValue) return { address: textOf(value) };
  const bytes = Buffer.from(value.decodeValue(), 'latin1');
  return { size: bytes.length, sha1: createHash('sha1').update(bytes).digest('hex') };
}

function cardOf(jcard) {
  const card = new ICAL.Component(jcard);
  const values = (...names) =>
    names.flatMap((name) => card.getAllProperties(name)).map((property) => property.getFirstValue());
  return {
    formattedNames: values('fn').map(textOf),
    name: partsOf(nameParts, values('n')[0]),
    numbers: values('tel').map(textOf),
    mails: values('email').map(textOf),
    addresses: values('adr').map((value) => partsOf(addressParts, value)),
    notes: values('note').map(textOf),
    birthdays: values('bday').map(textOf),
    anniversaries: values('anniversary', 'x-anniversary').map(textOf),
    photos: values('photo').map(pictureOf),
  };
}

function read(text) {
  try {
    const cards = text.startsWith('[') ? JSON.parse(text) : ICAL.parse(text);
    return (typeof cards[0] === 'string' ? [cards] : cards).map(cardOf);
  } catch (error) {
    return { error: `${error.name}: ${error.message}` };
  }
}

const blocks = readFileSync(0);
for (let at = 0; at < blocks.length; ) {
  const begin = blocks.indexOf('\n', at) + 1;
  at = begin + Number(blocks.toString('latin1', at, begin));
  console.log(JSON.stringify(read(blocks.toString('utf8', begin, at))));
}
