"use strict";
// Draws the board on a canvas.

// Where the canvas looks. Steps become pixels: x * scale + left, or mirrored, and -y * scale + top.
class Camera {
  constructor() {
    this.scale = 1;
    this.left = 0;
    this.top = 0;
    this.sign = 1; // -1: seen from below
  }

  toX(x) {
    return x * this.scale * this.sign + this.left;
  }

  toY(y) {
    return -y * this.scale + this.top;
  }

  fromX(x) {
    return ((x - this.left) / this.scale) * this.sign;
  }

  fromY(y) {
    return (this.top - y) / this.scale;
  }

  // The part of the board that a canvas of this size shows.
  boxOf(width, height) {
    const box = emptyBox();
    addToBox(box, this.fromX(0), this.fromY(0));
    addToBox(box, this.fromX(width), this.fromY(height));
    return box;
  }

  fit(box, width, height, sign) {
    this.sign = sign;
    this.scale = Math.min(width / Math.max(1, box.x1 - box.x0), height / Math.max(1, box.y1 - box.y0));
    this.left = width / 2 - ((box.x0 + box.x1) / 2) * this.scale * sign;
    this.top = height / 2 + ((box.y0 + box.y1) / 2) * this.scale;
  }

  zoom(factor, x, y) {
    this.scale *= factor;
    this.left = x + (this.left - x) * factor;
    this.top = y + (this.top - y) * factor;
  }

  copy() {
    return Object.assign(new Camera(), this);
  }
}

class Painter {
  constructor(board, context, camera, theme) {
    this.board = board;
    this.context = context;
    this.camera = camera;
    this.theme = theme; // an index into pairs of colours
    this.box = camera.boxOf(context.canvas.width, context.canvas.height);
    this.thin = Math.max(1, Math.min(2, window.devicePixelRatio));
  }

  // Draws the coats, piece by piece. Yields how many points each piece has. `accepts` chooses the shapes, `names` the
  // texts.
  *paint(coats, accepts, names) {
    for (const coat of coats) {
      const layer = this.board.layers[coat.layer];
      for (const batch of layer.batches) {
        if (!coat.parts.includes(batch.part)) continue;
        for (const cell of batch.shapes.cells) {
          if (!boxesMeet(cell.box, this.box, batch.width)) continue;
          this.paintCell(coat, batch, cell, this.isHole(coat) ? undefined : accepts);
          yield cell.points;
        }
      }
      if (!coat.hasTexts) continue;
      const texts = names === undefined ? layer.texts : layer.texts.filter(([text]) => names.has(text));
      yield* this.paintTexts(texts, coat.colours[this.theme]);
    }
  }

  // Holes have the colour of what is behind the board. They stay open whatever is chosen.
  isHole(coat) {
    return coat.colours[this.theme] === this.board.data.background[this.theme];
  }

  paintCell(coat, batch, cell, accepts) {
    const { context } = this;
    const { shapes, form } = batch;
    context.strokeStyle = context.fillStyle = coat.colours[this.theme];
    context.lineCap = context.lineJoin = "round";
    context.lineWidth = Math.max(this.thin, batch.width * this.camera.scale);
    context.beginPath();
    for (const unit of cell.units) {
      const first = shapes.units[unit];
      if (accepts !== undefined && !accepts(shapes, first)) continue;
      for (let shape = first; shape < shapes.ends[unit]; ++shape) this.trace(shapes, shape, form, batch.width);
      if (form === Form.fill) {
        this.fill(coat, batch.part);
        context.beginPath();
      }
    }
    if (form === Form.dot) context.fill();
    if (form === Form.line || form === Form.contour) context.stroke();
  }

  fill(coat, part) {
    const { context } = this;
    const first = part === Part.area ? 0 : 2;
    const opacity = coat.fills[first];
    if (opacity > 0) {
      context.globalAlpha = opacity;
      context.fill("evenodd");
      context.globalAlpha = 1;
    }
    if (!coat.fills[first + 1]) return;
    context.strokeStyle = coat.contours[this.theme];
    context.lineWidth = this.thin;
    context.stroke();
  }

  // Adds a shape to the path. Points that are less than half a pixel from the last one are left out.
  trace(shapes, shape, form, width) {
    const { context, camera } = this;
    const { coordinates } = shapes;
    const scaleX = camera.scale * camera.sign;
    const end = shapes.starts[shape + 1];
    let i = shapes.starts[shape];
    let lastX = coordinates[i] * scaleX + camera.left;
    let lastY = -coordinates[i + 1] * camera.scale + camera.top;
    if (form === Form.dot) {
      const radius = Math.max(0.5, (width * camera.scale) / 2);
      context.moveTo(lastX + radius, lastY);
      context.arc(lastX, lastY, radius, 0, 2 * Math.PI);
      return;
    }
    context.moveTo(lastX, lastY);
    for (i += 2; i < end; i += 2) {
      const x = coordinates[i] * scaleX + camera.left;
      const y = -coordinates[i + 1] * camera.scale + camera.top;
      if (Math.abs(x - lastX) < 0.5 && Math.abs(y - lastY) < 0.5 && i + 2 < end) continue;
      context.lineTo(x, y);
      lastX = x;
      lastY = y;
    }
    if (form !== Form.line) context.closePath();
  }

  *paintTexts(texts, colour) {
    const textsOfPiece = 500;
    const pointsOfText = 10; // it takes as long as so many points of a shape
    const widestLetter = 2; // in heights of capitals
    const capitals = 0.72; // the height of capitals, as a part of the size of the font
    const fontSize = 100;
    const { context, camera } = this;
    const { width, height: canvasHeight } = context.canvas;
    const steps = this.board.steps;
    let drawn = 0;
    context.fillStyle = colour;
    context.font = `${fontSize}px sans-serif`;
    for (const [text, x, y, height, cosX, sinX, cosY, sinY, column, row] of texts) {
      const pixels = height * steps * camera.scale;
      if (pixels < 3) continue;
      const scale = pixels / capitals / fontSize;
      const reach = pixels * widestLetter * (text.length + 1);
      const left = camera.toX(x * steps);
      const top = camera.toY(y * steps);
      if (left < -reach || left > width + reach || top < -reach || top > canvasHeight + reach) continue;
      const down = (height * (2 - row)) / 2;
      context.textAlign = ["left", "center", "right"][column];
      context.setTransform(
        camera.sign * cosX * scale, -sinX * scale, -camera.sign * cosY * scale, sinY * scale,
        camera.toX((x - cosY * down) * steps), camera.toY((y - sinY * down) * steps));
      context.fillText(text, 0, 0);
      if (++drawn % textsOfPiece === 0) yield textsOfPiece * pointsOfText;
    }
    context.setTransform(1, 0, 0, 1, 0, 0);
  }
}
