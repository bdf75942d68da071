"use strict";
// Finds what is at a point, and what has a name.

class Finder {
  constructor(board) {
    this.board = board;
  }

  // What the uppermost shape at a point belongs to: { kind, index, layer }, or null. `reach` is how far the point may
  // be from a thin line.
  at(x, y, reach, coats) {
    const point = { x0: x, y0: y, x1: x, y1: y };
    for (let i = coats.length - 1; i >= 0; --i) {
      const layer = this.board.layers[coats[i].layer];
      for (let j = layer.batches.length - 1; j >= 0; --j) {
        const batch = layer.batches[j];
        if (!coats[i].parts.includes(batch.part)) continue;
        const distance = Math.max(reach, batch.width / 2);
        for (const cell of batch.shapes.cells) {
          if (!boxesMeet(cell.box, point, distance)) continue;
          const unit = cell.units.find((candidate) => this.covers(batch, candidate, x, y, distance));
          if (unit === undefined) continue;
          const shape = batch.shapes.units[unit];
          const kind = batch.shapes.kinds[shape];
          if (kind !== Kind.nothing) return { kind, index: batch.shapes.owners[shape], layer };
        }
      }
    }
    return null;
  }

  covers({ shapes, form }, unit, x, y, distance) {
    const first = shapes.units[unit];
    if (shapes.kinds[first] === Kind.nothing) return false;
    if (form === Form.fill) return isInside(shapes, first, shapes.ends[unit], x, y);
    return isNear(shapes, first, x, y, distance, form === Form.contour);
  }

  // Nets, components and pins whose name begins with or contains a text, best first.
  search(text, most) {
    const wanted = text.trim().toLowerCase();
    if (wanted === "") return [];
    const found = [];
    const look = (kind, count, nameOf) => {
      for (let index = 0; index < count; ++index) {
        const name = nameOf(index);
        const place = name.toLowerCase().indexOf(wanted);
        if (place < 0) continue;
        found.push({ kind, index, name, rank: name.length === wanted.length ? 0 : place === 0 ? 1 : 2 });
      }
    };
    look(Kind.net, this.board.nets.length, (i) => this.board.nets[i].name);
    look(Kind.component, this.board.components.length, (i) => this.board.components[i].name);
    if (wanted.includes("-")) look(Kind.pin, this.board.pins.length, (i) => this.board.pinName(i));
    return found.sort((a, b) => a.rank - b.rank || a.name.length - b.name.length).slice(0, most);
  }
}

function isInside(shapes, from, to, x, y) {
  let inside = false;
  for (let shape = from; shape < to; ++shape) {
    const end = shapes.starts[shape + 1];
    let [lastX, lastY] = shapes.coordinates.subarray(end - 2, end);
    for (let i = shapes.starts[shape]; i < end; i += 2) {
      const nextX = shapes.coordinates[i];
      const nextY = shapes.coordinates[i + 1];
      if (nextY > y !== lastY > y && x < ((lastX - nextX) * (y - nextY)) / (lastY - nextY) + nextX) inside = !inside;
      lastX = nextX;
      lastY = nextY;
    }
  }
  return inside;
}

function isNear(shapes, shape, x, y, distance, isClosed) {
  const { coordinates } = shapes;
  const start = shapes.starts[shape];
  const end = shapes.starts[shape + 1];
  const last = isClosed ? end : end - 2;
  if (end - start === 2) return Math.hypot(coordinates[start] - x, coordinates[start + 1] - y) <= distance;
  for (let i = start; i < last; i += 2) {
    const next = i + 2 < end ? i + 2 : start;
    const dx = coordinates[next] - coordinates[i];
    const dy = coordinates[next + 1] - coordinates[i + 1];
    const length = dx * dx + dy * dy;
    const along = length === 0 ? 0 : ((x - coordinates[i]) * dx + (y - coordinates[i + 1]) * dy) / length;
    const clamped = Math.max(0, Math.min(1, along));
    if (Math.hypot(coordinates[i] + dx * clamped - x, coordinates[i + 1] + dy * clamped - y) <= distance) return true;
  }
  return false;
}
