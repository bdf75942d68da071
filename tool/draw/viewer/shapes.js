"use strict";
// Reads the shapes from their bytes; tool/draw/shape_bytes.h says how they are written. Coordinates are whole steps.

const Part = { area: 0, track: 1, drawing: 2, pad: 3 };
const Form = { line: 0, contour: 1, fill: 2, dot: 3 };
const Kind = { nothing: 0, net: 1, component: 2, pin: 3 };

function bytesOfText(text) {
  const digits = "!#%()*+,./0123456789:;=?@ABCDEFGHIJKLMNOPQRSTUVWXYZ[]^_abcdefghijklmnopqrstuvwxyz{|}~";
  const values = new Uint8Array(128);
  for (let i = 0; i < digits.length; ++i) values[digits.charCodeAt(i)] = i;
  const bytes = new DataView(new ArrayBuffer((text.length / 5) * 4));
  for (let from = 0, to = 0; from < text.length; to += 4) {
    let group = 0;
    for (let i = 0; i < 5; ++i) group = group * 85 + values[text.charCodeAt(from++)];
    bytes.setUint32(to, group);
  }
  return new Uint8Array(bytes.buffer);
}

class NumberReader {
  constructor(bytes, place) {
    this.bytes = bytes;
    this.place = place;
  }

  number() {
    let number = 0;
    for (let unit = 1; ; unit *= 128) {
      const byte = this.bytes[this.place++];
      number += (byte & 127) * unit;
      if (byte < 128) return number;
    }
  }

  signed() {
    const number = this.number();
    return number % 2 === 0 ? number / 2 : -(number + 1) / 2;
  }
}

// The shapes of one or more batches. Units are what is drawn in one piece: a shape with its holes. They are sorted by
// the cells of a grid, so that a part of the board is found without a look at all units.
class Shapes {
  constructor(bytes, place, count) {
    this.starts = new Uint32Array(count + 1); // of each shape in coordinates
    this.kinds = new Uint8Array(count);
    this.owners = new Uint32Array(count);
    this.isHole = new Uint8Array(count);
    this.read(new NumberReader(bytes, place), count);
    this.makeUnits();
    this.makeCells();
  }

  read(reader, count) {
    let coordinates = new Int32Array(Math.max(16, count * 8));
    let used = 0;
    let x = 0;
    let y = 0;
    let owner = 0;
    for (let shape = 0; shape < count; ++shape) {
      const head = reader.number();
      let points = Math.floor(head / 8);
      const lastPoints = shape === 0 ? 0 : (used - this.starts[shape - 1]) / 2;
      const repeated = points === 0;
      if (repeated) points = lastPoints;
      if (head & 2) owner += 4;
      if (head & 4) owner += reader.signed();
      if (used + points * 2 > coordinates.length) {
        const larger = new Int32Array((used + points * 2) * 2);
        larger.set(coordinates);
        coordinates = larger;
      }
      this.starts[shape] = used;
      this.kinds[shape] = owner % 4;
      this.owners[shape] = Math.floor(owner / 4);
      this.isHole[shape] = head & 1;
      const before = used - points * 2;
      for (let point = 0; point < points; ++point) {
        if (repeated && point > 0) {
          x += coordinates[before + point * 2] - coordinates[before + point * 2 - 2];
          y += coordinates[before + point * 2 + 1] - coordinates[before + point * 2 - 1];
        } else {
          x += reader.signed();
          y += reader.signed();
        }
        coordinates[used++] = x;
        coordinates[used++] = y;
      }
    }
    this.starts[count] = used;
    this.coordinates = coordinates.slice(0, used);
  }

  makeUnits() {
    const units = [];
    for (let shape = 0; shape < this.isHole.length; ++shape) {
      if (!this.isHole[shape]) units.push(shape);
    }
    this.units = Uint32Array.from(units);
    this.ends = new Uint32Array(units.length);
    for (let i = 0; i < units.length; ++i) {
      this.ends[i] = i + 1 < units.length ? units[i + 1] : this.isHole.length;
    }
  }

  boxOfShapes(from, to) {
    const box = emptyBox();
    for (let i = this.starts[from]; i < this.starts[to]; i += 2) {
      addToBox(box, this.coordinates[i], this.coordinates[i + 1]);
    }
    return box;
  }

  makeCells() {
    const pointsPerCell = 800;
    const side = Math.min(64, Math.ceil(Math.sqrt(this.coordinates.length / 2 / pointsPerCell)) || 1);
    const all = this.boxOfShapes(0, this.isHole.length);
    const columnWidth = (all.x1 - all.x0) / side || 1;
    const rowHeight = (all.y1 - all.y0) / side || 1;
    const cells = new Map();
    for (let unit = 0; unit < this.units.length; ++unit) {
      const first = this.starts[this.units[unit]];
      const column = Math.min(side - 1, Math.floor((this.coordinates[first] - all.x0) / columnWidth));
      const row = Math.min(side - 1, Math.floor((this.coordinates[first + 1] - all.y0) / rowHeight));
      const key = row * side + column;
      let cell = cells.get(key);
      if (cell === undefined) cells.set(key, (cell = { box: emptyBox(), units: [], points: 0 }));
      cell.units.push(unit);
      cell.points += (this.starts[this.ends[unit]] - first) / 2;
      joinBox(cell.box, this.boxOfShapes(this.units[unit], this.ends[unit]));
    }
    this.cells = [...cells.keys()].sort((a, b) => a - b).map((key) => cells.get(key));
  }
}

function emptyBox() {
  return { x0: Infinity, y0: Infinity, x1: -Infinity, y1: -Infinity };
}

function addToBox(box, x, y) {
  if (x < box.x0) box.x0 = x;
  if (x > box.x1) box.x1 = x;
  if (y < box.y0) box.y0 = y;
  if (y > box.y1) box.y1 = y;
}

function joinBox(box, other) {
  addToBox(box, other.x0, other.y0);
  addToBox(box, other.x1, other.y1);
}

function boxesMeet(a, b, margin) {
  return a.x0 - margin <= b.x1 && b.x0 <= a.x1 + margin && a.y0 - margin <= b.y1 && b.y0 <= a.y1 + margin;
}

// Everything that the page knows of the board.
class Board {
  constructor(data, bytes) {
    this.data = data;
    this.steps = data.stepsPerMillimetre;
    const known = new Map(); // equal bytes are written and read once
    this.layers = data.layers.map((layer) => ({
      ...layer,
      texts: wholeTexts(layer.texts),
      batches: layer.batches.map(([part, form, width, count, place]) => {
        if (!known.has(place)) known.set(place, new Shapes(bytes, place, count));
        return { part, form, width: width * this.steps, shapes: known.get(place) };
      }),
    }));
    this.readNets(data.nets, new NumberReader(bytes, data.nets.place));
    this.readComponents(data.components, new NumberReader(bytes, data.components.place));
  }

  readNets(data, reader) {
    this.nets = namesOf(data.names, data.count).map((name) => {
      const net = { name, length: 0, lengths: [], pins: [] };
      for (let layers = reader.number(); layers > 0; --layers) {
        const number = reader.signed();
        const length = reader.number() / this.steps;
        net.lengths.push({ layer: data.layerNames[number] ?? `layer ${number}`, length });
        net.length += length;
      }
      net.unplacedPins = reader.number();
      return net;
    });
  }

  readComponents(data, reader) {
    const names = namesOf(data.names, data.count);
    const parts = data.parts.split("\n");
    const pinLists = data.pinLists.map((list) => list.split("\n"));
    this.pins = [];
    this.components = names.map((name, index) => {
      const component = { name, part: parts[reader.number()], isBottom: reader.number() === 1 };
      component.x = reader.signed();
      component.y = reader.signed();
      const pinNames = pinLists[reader.number()];
      component.firstPin = this.pins.length;
      component.pinCount = reader.number();
      for (let i = 0; i < component.pinCount; ++i) {
        const net = reader.number() - 1;
        if (net >= 0) this.nets[net].pins.push(this.pins.length);
        this.pins.push({ name: pinNames[i], component: index, net });
      }
      return component;
    });
  }

  pinName(index) {
    const pin = this.pins[index];
    return `${this.components[pin.component].name}-${pin.name}`;
  }

  pinCountOf(net) {
    return net.pins.length + net.unplacedPins;
  }

  // Whether a shape belongs to something that is selected.
  belongs(shapes, shape, selected) {
    const kind = shapes.kinds[shape];
    const owner = shapes.owners[shape];
    if (kind === Kind.nothing) return false;
    if (kind === selected.kind && owner === selected.index) return true;
    if (kind !== Kind.pin) return false;
    const pin = this.pins[owner];
    return selected.kind === Kind.net ? pin.net === selected.index
      : selected.kind === Kind.component && pin.component === selected.index;
  }

  // The box around what is selected; of a component without a drawing, its position.
  boxOf(selected) {
    const box = emptyBox();
    for (const layer of this.layers) {
      for (const { shapes } of layer.batches) {
        for (let i = 0; i < shapes.units.length; ++i) {
          if (!this.belongs(shapes, shapes.units[i], selected)) continue;
          joinBox(box, shapes.boxOfShapes(shapes.units[i], shapes.ends[i]));
        }
      }
    }
    const component = selected.kind === Kind.pin ? this.pins[selected.index].component : selected.index;
    if (box.x0 > box.x1 && selected.kind !== Kind.net) {
      addToBox(box, this.components[component].x, this.components[component].y);
    }
    return box;
  }
}

// Adds the numbers that are left out since they are as in the text before.
function wholeTexts(texts) {
  let before = Array(10).fill(0);
  return texts.map((text) => (before = [...text, ...before.slice(text.length)]));
}

function namesOf(lines, count) {
  return count === 0 ? [] : lines.split("\n");
}
