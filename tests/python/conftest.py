"""What the tests of the module share."""

from __future__ import annotations

import json
import os
import shutil
import subprocess
from pathlib import Path
from typing import Any, Callable

import pytest

TOOL = os.environ["KESTRIN_TOOL"]
GENERATE = os.environ["KESTRIN_GENERATE"]
SAMPLE = Path(os.environ["KESTRIN_EXAMPLES"]) / "board"


def tool(*arguments: object) -> Any:
    """What the tool prints, as data."""
    result = subprocess.run(
        [TOOL, *map(str, arguments)], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=False
    )
    return json.loads(result.stdout)


def generate(folder: Path, legs: int) -> Path:
    subprocess.run([GENERATE, "board", str(folder), str(legs)], check=True)
    return folder


@pytest.fixture(scope="session")
def generated(tmp_path_factory: pytest.TempPathFactory) -> Path:
    """A set with a few thousand legs."""
    return generate(tmp_path_factory.mktemp("generated"), 5000)


@pytest.fixture(scope="session")
def large(tmp_path_factory: pytest.TempPathFactory) -> Path:
    """A set that takes a while to read."""
    return generate(tmp_path_factory.mktemp("large"), 1_000_000)


@pytest.fixture
def edited(tmp_path: Path) -> Callable[..., Path]:
    """Makes a copy of the sample in which texts of a file are replaced."""

    def make(ending: str, *edits: tuple[str, str], name: str = "edited") -> Path:
        folder = tmp_path / name
        shutil.copytree(SAMPLE, folder, dirs_exist_ok=True)
        file = folder / f"board.{ending}"
        text = file.read_text(encoding="latin-1")
        for old, new in edits:
            assert old in text
            text = text.replace(old, new)
        file.write_text(text, encoding="latin-1")
        return folder

    return make
