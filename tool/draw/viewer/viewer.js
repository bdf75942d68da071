"use strict";
// The page: what it shows.

class Viewer {
  constructor(board) {
    this.board = board;
    this.finder = new Finder(board);
    this.lists = new Lists(board, (selected) => this.select([selected]));
    this.canvas = document.getElementById("board");
    this.shown = document.createElement("canvas"); // the last complete drawing, and where its camera was
    this.shownCamera = null;
    this.camera = new Camera();
    this.selected = [];
    this.job = null;
    this.isFramePlanned = false;
    const { first } = board.data;
    this.view = first.view;
    this.wholeBox = this.boxInSteps(board.data.box);
    const prefersLight = window.matchMedia("(prefers-color-scheme: light)");
    this.setTheme(first.theme ?? (prefersLight.matches ? "light" : "dark"));
    if (!first.theme) prefersLight.addEventListener("change", (e) => this.setTheme(e.matches ? "light" : "dark"));
    this.showPanel();
    this.controls = new Controls(this);
    this.setView(first.view);
    if (first.nets.length > 0) this.select(first.nets.map((index) => ({ kind: Kind.net, index })), false);
  }

  boxInSteps([x0, y0, x1, y1]) {
    const { steps } = this.board;
    return { x0: x0 * steps, y0: y0 * steps, x1: x1 * steps, y1: y1 * steps };
  }

  // ---- What is shown

  coats() {
    return this.board.data.views[this.view].filter(({ layer }) => this.board.layers[layer].isShown);
  }

  setView(view) {
    this.view = view;
    for (const button of document.querySelectorAll("[data-view]")) {
      button.setAttribute("aria-checked", String(button.dataset.view === view));
      button.tabIndex = button.dataset.view === view ? 0 : -1;
    }
    const sign = view === "bottom" ? -1 : 1;
    if (sign !== this.camera.sign) {
      // The middle of the picture stays where it is.
      const middle = this.camera.fromX(this.canvas.width / 2);
      this.camera.sign = sign;
      this.camera.left = this.canvas.width / 2 - middle * this.camera.scale * sign;
    }
    this.redraw();
  }

  setTheme(theme) {
    this.theme = theme === "light" ? 1 : 0;
    document.documentElement.dataset.theme = theme;
    document.getElementById("theme").setAttribute("aria-pressed", String(theme === "light"));
    this.redraw();
  }

  setShown(layer, isShown) {
    this.board.layers[layer].isShown = isShown;
    this.redraw();
  }

  fit(box = this.wholeBox) {
    this.camera.fit(box, this.canvas.width, this.canvas.height, this.camera.sign);
    this.redraw();
  }

  select(selected, isZoomed = true) {
    this.selected = selected;
    const place = document.getElementById("details");
    place.replaceChildren();
    for (const one of selected) this.lists.showDetails(place, one);
    document.getElementById("clear").hidden = selected.length === 0;
    const box = emptyBox();
    for (const one of selected) joinBox(box, this.board.boxOf(one));
    if (isZoomed && box.x0 <= box.x1) {
      const margin = Math.max(this.board.steps * 2, (box.x1 - box.x0) * 0.15, (box.y1 - box.y0) * 0.15);
      this.fit({ x0: box.x0 - margin, y0: box.y0 - margin, x1: box.x1 + margin, y1: box.y1 + margin });
    } else {
      this.redraw();
    }
  }

  // ---- Drawing
  //
  // A drawing of a large board takes longer than a frame. It is made in pieces on a canvas that nobody sees. Until it
  // is complete, the last complete one is shown, moved and scaled to where the camera is. While the camera moves, no
  // new drawing is begun.

  redraw(pause = 0) {
    if (this.canvas === undefined || this.canvas.width === 0) return;
    this.job = null;
    this.startTime = performance.now() + pause;
    this.canvas.setAttribute("aria-busy", "true");
    this.planFrame();
  }

  redrawMoved() {
    this.redraw(this.shownCamera === null ? 0 : 100);
  }

  planFrame() {
    if (this.isFramePlanned) return;
    this.isFramePlanned = true;
    requestAnimationFrame(() => {
      this.isFramePlanned = false;
      this.drawFrame();
    });
  }

  drawFrame() {
    const isDone = performance.now() >= this.startTime && this.drawPieces();
    if (isDone) {
      this.shown = this.job.canvas;
      this.shownCamera = this.job.camera;
    }
    this.showLast();
    if (isDone) {
      this.canvas.setAttribute("aria-busy", "false");
    } else {
      this.planFrame();
    }
  }

  // Draws what fits into a frame. Browsers draw later than they are told, so the points count, too.
  drawPieces() {
    const mostPoints = 20000;
    if (this.job === null) this.startJob();
    const until = performance.now() + 10;
    for (let points = 0; points < mostPoints && performance.now() < until;) {
      const { done, value } = this.job.steps.next();
      if (done) return true;
      points += value;
    }
    return false;
  }

  startJob() {
    const canvas = document.createElement("canvas");
    canvas.width = this.canvas.width;
    canvas.height = this.canvas.height;
    const camera = this.camera.copy();
    const context = canvas.getContext("2d");
    const painter = new Painter(this.board, context, camera, this.theme);
    this.job = { canvas, camera, steps: this.drawAll(painter, context) };
  }

  *drawAll(painter, context) {
    const veil = 0.75;
    const background = this.board.data.background[this.theme];
    context.fillStyle = background;
    context.fillRect(0, 0, context.canvas.width, context.canvas.height);
    const coats = this.coats();
    yield* painter.paint(coats);
    if (this.selected.length === 0) return;
    context.globalAlpha = veil;
    context.fillStyle = background;
    context.fillRect(0, 0, context.canvas.width, context.canvas.height);
    context.globalAlpha = 1;
    const names = this.selected.filter(({ kind }) => kind === Kind.component)
      .map(({ index }) => this.board.components[index].name);
    yield* painter.paint(coats, (shapes, shape) =>
      this.selected.some((selected) => this.board.belongs(shapes, shape, selected)), new Set(names));
  }

  showLast() {
    const context = this.canvas.getContext("2d");
    context.fillStyle = this.board.data.background[this.theme];
    context.fillRect(0, 0, this.canvas.width, this.canvas.height);
    if (this.shownCamera === null) return void context.drawImage(this.job.canvas, 0, 0);
    const from = this.shownCamera;
    const factor = this.camera.scale / from.scale;
    const turn = this.camera.sign * from.sign;
    context.setTransform(factor * turn, 0, 0, factor, this.camera.left - from.left * factor * turn,
      this.camera.top - from.top * factor);
    context.drawImage(this.shown, 0, 0);
    context.setTransform(1, 0, 0, 1, 0, 0);
  }

  // ---- The panel

  showPanel() {
    const { board, lists } = this;
    const name = board.data.name || "Board";
    document.title = `${name} – board viewer`;
    document.getElementById("title").textContent = name;
    this.canvas.setAttribute("aria-label", `Drawing of ${name}. Arrows move it, plus and minus zoom, 0 shows all.`);
    document.getElementById("unconfirmed").hidden = board.data.isConfirmed;
    document.getElementById("net-count").textContent = String(board.nets.length);
    document.getElementById("component-count").textContent = String(board.components.length);
    lists.showLayers(document.getElementById("layers"), (layer, isShown) => this.setShown(layer, isShown));
    lists.showNets(document.getElementById("nets"), "");
    lists.showParts(document.getElementById("parts"));
  }

  search(text) {
    const most = 20;
    const results = this.finder.search(text, most);
    this.lists.showResults(document.getElementById("results"), results);
    const count = results.length === 0 ? "Nothing" : `${results.length === most ? "First " : ""}${results.length}`;
    document.getElementById("result-count").textContent = text.trim() === "" ? "" : `${count} found`;
    return results;
  }

  showPointer(x, y) {
    const { board, camera } = this;
    const millimetre = (steps) => (steps / board.steps).toFixed(2);
    const reach = 4 * window.devicePixelRatio / camera.scale;
    const found = this.finder.at(camera.fromX(x), camera.fromY(y), reach, this.coats());
    const words = [`x ${millimetre(camera.fromX(x))} y ${millimetre(camera.fromY(y))} mm`];
    if (found !== null) words.push(this.describe(found), found.layer.label);
    document.getElementById("pointer").textContent = words.join(" · ");
    return found;
  }

  describe({ kind, index }) {
    const { board } = this;
    if (kind === Kind.net) return `net ${board.nets[index].name}`;
    if (kind === Kind.component) return `component ${board.components[index].name}`;
    const net = board.pins[index].net;
    return `pin ${board.pinName(index)}${net < 0 ? "" : `, net ${board.nets[net].name}`}`;
  }

  // ---- Moving

  resize() {
    const { width, height } = this.canvas.parentElement.getBoundingClientRect();
    const isFirst = this.canvas.dataset.sized === undefined;
    this.canvas.dataset.sized = "yes";
    this.canvas.width = Math.max(1, Math.round(width * window.devicePixelRatio));
    this.canvas.height = Math.max(1, Math.round(height * window.devicePixelRatio));
    if (isFirst) this.fit(this.boxInSteps(this.board.data.first.box));
    this.redraw();
  }

  zoomMiddle(factor) {
    this.zoom(factor, this.canvas.width / 2, this.canvas.height / 2);
  }

  zoom(factor, x, y) {
    const most = 400; // pixels of a step
    const least = 20 / Math.max(this.wholeBox.x1 - this.wholeBox.x0, this.wholeBox.y1 - this.wholeBox.y0);
    const scale = this.camera.scale * factor;
    if (factor > 1 ? scale > most : scale < least) return;
    this.camera.zoom(factor, x, y);
    this.redrawMoved();
  }

  move(dx, dy) {
    this.camera.left += dx;
    this.camera.top += dy;
    this.redrawMoved();
  }
}

new Viewer(new Board(JSON.parse(document.getElementById("data").textContent),
  bytesOfText(document.getElementById("shapes").textContent)));
