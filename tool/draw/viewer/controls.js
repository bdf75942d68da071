"use strict";
// What mouse, touch and keys do.

class Controls {
  constructor(viewer) {
    this.viewer = viewer;
    this.listen();
  }

  listen() {
    const { viewer } = this;
    new ResizeObserver(() => viewer.resize()).observe(viewer.canvas.parentElement);
    this.listenToPointers();
    this.listenToKeys();
    const on = (id, event, action) => document.getElementById(id).addEventListener(event, action);
    on("zoom-in", "click", () => viewer.zoomMiddle(1.5));
    on("zoom-out", "click", () => viewer.zoomMiddle(1 / 1.5));
    on("fit", "click", () => viewer.fit());
    on("theme", "click", () => viewer.setTheme(viewer.theme === 0 ? "light" : "dark"));
    on("clear", "click", () => viewer.select([], false));
    on("search", "input", (event) => viewer.search(event.target.value));
    on("search", "keydown", (event) => {
      if (event.key !== "Enter") return;
      const [best] = viewer.search(event.target.value);
      if (best !== undefined) viewer.select([best]);
    });
    on("net-filter", "input", (event) => viewer.lists.showNets(document.getElementById("nets"), event.target.value));
    for (const button of document.querySelectorAll("[data-view]")) {
      button.addEventListener("click", () => viewer.setView(button.dataset.view));
    }
  }

  listenToPointers() {
    const { viewer } = this;
    const down = new Map(); // the pointers that are pressed, by their id
    let hasMoved = false;
    const place = (event) => {
      const box = viewer.canvas.getBoundingClientRect();
      return {
        x: (event.clientX - box.left) * window.devicePixelRatio,
        y: (event.clientY - box.top) * window.devicePixelRatio,
      };
    };
    const spread = () => {
      const [a, b] = [...down.values()];
      return { x: (a.x + b.x) / 2, y: (a.y + b.y) / 2, length: Math.hypot(a.x - b.x, a.y - b.y) || 1 };
    };
    viewer.canvas.addEventListener("pointerdown", (event) => {
      viewer.canvas.setPointerCapture(event.pointerId);
      down.set(event.pointerId, place(event));
      hasMoved = false;
    });
    viewer.canvas.addEventListener("pointermove", (event) => {
      const now = place(event);
      const before = down.get(event.pointerId);
      if (before === undefined) return void viewer.showPointer(now.x, now.y);
      const old = down.size === 2 ? spread() : null;
      if (Math.hypot(now.x - before.x, now.y - before.y) > 2) hasMoved = true;
      down.set(event.pointerId, now);
      if (old === null) return viewer.move(now.x - before.x, now.y - before.y);
      const current = spread();
      viewer.move(current.x - old.x, current.y - old.y);
      viewer.zoom(current.length / old.length, current.x, current.y);
    });
    const release = (event) => {
      const isClick = event.type === "pointerup" && down.size === 1 && !hasMoved;
      down.delete(event.pointerId);
      if (!isClick) return;
      const now = place(event);
      const found = viewer.showPointer(now.x, now.y);
      viewer.select(found === null ? [] : [found], false);
    };
    viewer.canvas.addEventListener("pointerup", release);
    viewer.canvas.addEventListener("pointercancel", release);
    viewer.canvas.addEventListener("wheel", (event) => {
      event.preventDefault();
      const { x, y } = place(event);
      viewer.zoom(Math.exp(-event.deltaY * (event.deltaMode === 1 ? 0.05 : 0.0015)), x, y);
    }, { passive: false });
  }

  listenToKeys() {
    const { viewer } = this;
    const step = 80;
    const keys = {
      ArrowLeft: () => viewer.move(step, 0),
      ArrowRight: () => viewer.move(-step, 0),
      ArrowUp: () => viewer.move(0, step),
      ArrowDown: () => viewer.move(0, -step),
      "+": () => viewer.zoomMiddle(1.25),
      "=": () => viewer.zoomMiddle(1.25),
      "-": () => viewer.zoomMiddle(1 / 1.25),
      0: () => viewer.fit(),
    };
    viewer.canvas.addEventListener("keydown", (event) => {
      const action = keys[event.key];
      if (action === undefined || event.ctrlKey || event.metaKey || event.altKey) return;
      event.preventDefault();
      action();
    });
    document.addEventListener("keydown", (event) => {
      const isTyping = event.target instanceof HTMLInputElement && event.target.type !== "checkbox";
      if (event.key === "Escape") viewer.select([], false);
      if (event.key === "/" && !isTyping) {
        event.preventDefault();
        document.getElementById("search").focus();
      }
    });
    this.listenToViewKeys();
  }

  // Arrows choose among radio buttons, as everywhere.
  listenToViewKeys() {
    const { viewer } = this;
    const views = ["layers", "top", "bottom"];
    const change = { ArrowLeft: -1, ArrowUp: -1, ArrowRight: 1, ArrowDown: 1 };
    document.getElementById("views").addEventListener("keydown", (event) => {
      if (change[event.key] === undefined) return;
      event.preventDefault();
      const next = views[(views.indexOf(viewer.view) + change[event.key] + views.length) % views.length];
      viewer.setView(next);
      document.querySelector(`[data-view="${next}"]`).focus();
    });
  }
}
