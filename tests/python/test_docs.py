"""The examples of the documentation."""

from __future__ import annotations

import doctest
import json
import os
import subprocess
from pathlib import Path

import kestrin
import pytest
from conftest import SAMPLE, TOOL, generate

DOCS = Path(os.environ["KESTRIN_EXAMPLES"]).parent / "docs"


@pytest.fixture
def boards(tmp_path: Path, monkeypatch: pytest.MonkeyPatch) -> Path:
    """A folder with the examples, and with three boards and an empty folder in "boards"."""
    (tmp_path / "examples").symlink_to(SAMPLE.parent)
    for i in range(3):
        generate(tmp_path / "boards" / f"b{i}", 300)
    (tmp_path / "boards" / "b3").mkdir()
    monkeypatch.chdir(tmp_path)
    return tmp_path


@pytest.mark.parametrize("page", ["python.md", "many-boards.md"])
def test_examples_in_python_are_true(page: str, boards: Path) -> None:
    for package in ("pandas", "dask.dataframe", "distributed"):
        pytest.importorskip(package)
    result = doctest.testfile(str(DOCS / page), module_relative=False, optionflags=doctest.ELLIPSIS)
    assert result.failed == 0 and result.attempted > 0


def test_the_example_for_a_shell_writes_a_line_for_each_set(boards: Path) -> None:
    page = (DOCS / "many-boards.md").read_text(encoding="utf-8")
    command = next(line.strip() for line in page.splitlines() if "xargs" in line and line.startswith("    "))
    path = f"{Path(TOOL).parent}:{os.environ['PATH']}"
    subprocess.run(["bash", "-c", command], env=os.environ | {"PATH": path}, check=False)
    summaries = [json.loads(line) for line in (boards / "boards.jsonl").read_text().splitlines()]
    assert sorted(summary["files"][-1]["file"] for summary in summaries) == [
        f"boards/b{i}/board.traces" for i in range(3)
    ]
    board = kestrin.read("boards/b0")
    counts = {name: summaries[0][name] for name in ("layers", "components", "nets", "pins", "vias", "open")}
    assert counts == {
        "layers": len(board.layers),
        "components": len(board.components),
        "nets": len(board.nets),
        "pins": sum(len(component.pins) for component in board.components),
        "vias": len(board.vias),
        "open": sum(len(net.open) for net in board.nets),
    }
    lengths = {layer["name"]: layer["mm"] for layer in summaries[0]["length"]}
    wanted: dict[str, float] = {}
    for net in board.nets:
        for layer, length in net.length.items():
            wanted[layer] = wanted.get(layer, 0.0) + length
    assert lengths == pytest.approx(wanted)
    assert 'no .neutral file in "boards/b3' in (boards / "failures.txt").read_text()
