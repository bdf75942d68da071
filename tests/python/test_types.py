"""The types that the package promises."""

from __future__ import annotations

import os
import pydoc
import re
import subprocess
import sys
from pathlib import Path

import kestrin
import pytest

HERE = Path(__file__).parent


# What the tool for stubs says of all classes of pybind11.
ALLOWED = r"""kestrin\._kestrin\.[A-Za-z_]+
kestrin\._kestrin\.[A-Za-z_]+\.__init__
"""


def run(tmp_path: Path, module: str, *arguments: str) -> None:
    pytest.importorskip("mypy")
    result = subprocess.run(
        [sys.executable, "-m", module, *arguments],
        cwd=tmp_path,
        env=os.environ | {"MYPYPATH": str(Path(kestrin.__file__).parent.parent)},
        capture_output=True,
        text=True,
    )
    assert result.returncode == 0, result.stdout + result.stderr


# A misspelt name is an error, which the comment expects.
PROGRAM = """
import kestrin
from numpy import float64
from numpy.typing import NDArray

board = kestrin.read("board", traces=b"", rotation="ccw", bottom_turn=180)
net = board.components["U_1"].pins[0].net
name: str = net.name if net is not None else ""
x: NDArray[float64] = board.nets["GND"].tracks.x1
lengths: dict[str, float] = board.nets.get("GND").length  # type: ignore[union-attr]
board.nats  # type: ignore[attr-defined]
board.draw("board.svg", net=["GND"], box=(0, 0, 1, 1), view="top")
details = [detail.before for change in kestrin.compare(board, board).changes for detail in change.details]
"""


def test_mypy_accepts_the_package_and_a_program(tmp_path: Path) -> None:
    (tmp_path / "program.py").write_text(PROGRAM)
    options = ["--cache-dir", str(tmp_path), "--config-file", str(HERE / "mypy.ini")]
    run(tmp_path, "mypy", *options, "-p", "kestrin", "-m", "program")


def test_stubs_and_module_agree(tmp_path: Path) -> None:
    allowed = tmp_path / "allowed"
    allowed.write_text(ALLOWED)
    options = ["--mypy-config-file", str(HERE / "mypy.ini"), "--allowlist", str(allowed), "--ignore-unused-allowlist"]
    run(tmp_path, "mypy.stubtest", *options, "kestrin._kestrin")


def test_help_tells_of_everything() -> None:
    text = pydoc.render_doc(kestrin, renderer=pydoc.plaintext)
    assert {"read", "dump", "tables", "compare", "Board", "Nets", "Tracks", "Error"} <= set(kestrin.__all__)
    for name in kestrin.__all__:
        member = getattr(kestrin, name)
        kind = "class " if isinstance(member, type) else ""
        assert re.search(rf"^    {kind}{name}\(", text, re.MULTILINE), name
        assert not kind or member.__module__ == "kestrin"
    assert max(map(len, kestrin.Board.draw.__doc__.splitlines())) < 110


def test_everything_says_what_it_is() -> None:
    for name, member in vars(kestrin).items():
        if name.startswith("_"):
            continue
        assert member.__doc__, name
        for part in vars(member).values() if isinstance(member, type) else ():
            assert not isinstance(part, property) or part.__doc__
