"""Reading sets: what is read, how it fails, how it is stopped."""

from __future__ import annotations

import gc
import os
import pickle
import signal
import subprocess
import sys
import threading
import time
from pathlib import Path
from typing import Any, Callable, Optional

import kestrin
import pytest
from conftest import SAMPLE, tool

ENDINGS = ("tech", "neutral", "geometry", "traces")


@pytest.mark.parametrize("strict", [False, True])
@pytest.mark.parametrize("which", ["sample", "generated"])
def test_models_and_boards_are_those_of_the_tool(which: str, strict: bool, generated: Path) -> None:
    folder = SAMPLE if which == "sample" else generated
    option = ["--strict"] if strict else []
    assert kestrin.dump(folder, strict=strict) == tool("dump", folder, *option)
    assert kestrin.read(folder, strict=strict).to_dict() == tool("board", folder, *option)


def test_sets_are_named_by_folder_files_or_contents(tmp_path: Path) -> None:
    board = kestrin.read(SAMPLE).to_dict()
    paths = {ending: SAMPLE / f"board.{ending}" for ending in ENDINGS}
    assert kestrin.read(*paths.values()).to_dict() == board
    assert kestrin.read(**paths).to_dict() == board
    contents = {ending: path.read_bytes() for ending, path in paths.items()}
    assert kestrin.read(**contents).to_dict() == board
    assert kestrin.read(str(SAMPLE), traces=b"").to_dict() != board
    assert kestrin.dump(tech=paths["tech"])["nets"] is None
    odd = tmp_path / "a\udce9 name.tech"
    odd.write_bytes(contents["tech"])
    assert kestrin.read(odd).report["tech"].file == str(odd)


def test_what_is_fixed_is_not_fitted() -> None:
    board = kestrin.read(SAMPLE, rotation="cw", bottom="cw", bottom_turn=180, width_step=0.1)
    options = ["--rotation", "cw", "--bottom", "cw", "--bottom-turn", "180", "--width-step", "0.1"]
    assert board.to_dict() == tool("board", SAMPLE, *options)
    assert not board.reading.fitted


@pytest.mark.parametrize("encoding", ["auto", "utf-8", "latin-1"])
@pytest.mark.parametrize("name", ["Stra\u00dfe".encode(), "Stra\u00dfe".encode("latin-1")])
def test_texts_are_decoded_as_the_tool_does(edited: Callable[..., Path], encoding: str, name: bytes) -> None:
    folder = edited("neutral", ("R_1", name.decode("latin-1")))
    board = kestrin.read(folder, encoding=encoding)
    assert board.to_dict() == tool("board", folder, "--encoding", encoding)
    for component in board.components:
        assert board.components[component.name] == component
    assert kestrin.dump(folder) == tool("dump", folder)


WRONG = [
    (("missing",), {}, 'cannot open "missing": No such file or directory', "missing"),
    ((), {"traces": "missing.traces"}, 'cannot open "missing.traces": No such file or directory', "missing.traces"),
    ((), {}, "no file to read", None),
    (("{folder}",), {}, 'no .neutral file in "{folder}"; name one with neutral=', "{folder}"),
    (("{folder}/x",), {}, "name it with tech=, neutral=, geometry= or traces=", None),
]


@pytest.mark.parametrize(("paths", "files", "message", "file"), WRONG)
def test_errors_say_what_is_wrong_and_where(tmp_path: Path, paths, files, message, file) -> None:  # type: ignore[no-untyped-def]
    (tmp_path / "x").touch()
    folder = str(tmp_path)
    with pytest.raises(kestrin.Error) as raised:
        kestrin.read(*(path.format(folder=folder) for path in paths), **files)
    assert message.format(folder=folder) in str(raised.value)
    assert raised.value.file == (file and file.format(folder=folder))
    assert raised.value.line is None


@pytest.mark.parametrize(
    ("argument", "kind"),
    [(3, TypeError), (["board.tech"], TypeError), ("", ValueError), (b"", None), ("a\0b", ValueError)],
)
def test_what_is_no_path_is_refused(argument: Any, kind: Optional[type[Exception]]) -> None:
    for read in (kestrin.read, kestrin.dump):
        if kind:
            with pytest.raises(kind):
                read(SAMPLE, tech=argument)
        if not isinstance(argument, bytes):
            with pytest.raises(kind or ()):
                read(argument)


def test_contents_are_bytes_of_any_kind_and_a_file_may_have_any_name(
    tmp_path: Path, monkeypatch: pytest.MonkeyPatch
) -> None:
    tech = (SAMPLE / "board.tech").read_bytes()
    names = kestrin.read(tech=tech).layers.names()
    for contents in (bytearray(tech), memoryview(tech)):
        assert kestrin.read(tech=contents).layers.names() == names
    monkeypatch.chdir(tmp_path)
    Path("-").write_bytes(tech)
    assert kestrin.read(tech="-").layers.names() == names


def test_sets_from_contents_leave_no_files_open() -> None:
    contents = {ending: (SAMPLE / f"board.{ending}").read_bytes() + b"FOO" for ending in ENDINGS}
    before = os.listdir("/proc/self/fd")
    board = kestrin.read(**contents)
    assert os.listdir("/proc/self/fd") == before
    assert {finding.code for finding in board.findings} == {"no-final-newline"}
    assert board.tables()["findings"]["file"].tolist() == ["<tech>", "<neutral>", "<geometry>", "<traces>"]


def test_findings_need_the_files_that_were_read(edited: Callable[..., Path]) -> None:
    for change in (lambda file: file.unlink(), lambda file: file.write_bytes(b"UNITS MM\n")):
        folder = edited("neutral")
        board = kestrin.read(folder)
        text = (folder / "board.traces").read_bytes()
        change(folder / "board.traces")
        with pytest.raises(kestrin.Error, match="gone or has changed") as raised:
            board.findings
        assert raised.value.file == str(folder / "board.traces")
        (folder / "board.traces").write_bytes(text)
    board = kestrin.read(folder)
    assert board.findings == []
    (folder / "board.traces").unlink()
    assert board.findings == []


def test_a_file_that_changes_while_a_set_is_read_is_noticed(large: Path, tmp_path: Path) -> None:
    tech = tmp_path / "a.tech"
    tech.write_bytes((large / "board.tech").read_bytes())
    times = iter(range(1_000_000))
    before = signal.signal(signal.SIGVTALRM, lambda *_: os.utime(tech, (0, next(times))))
    try:
        signal.setitimer(signal.ITIMER_VIRTUAL, 0.02)
        board = kestrin.read(large, tech=tech)
    finally:
        signal.setitimer(signal.ITIMER_VIRTUAL, 0)
        signal.signal(signal.SIGVTALRM, before)
    with pytest.raises(kestrin.Error, match="gone or has changed"):
        board.findings


@pytest.mark.parametrize(
    "arguments",
    [
        {"rotation": "left"},
        {"bottom": ""},
        {"bottom_turn": 90},
        {"encoding": "ebcdic"},
        {"width_step": 0},
        {"width_step": float("nan")},
    ],
)
def test_wrong_words_are_value_errors(arguments) -> None:  # type: ignore[no-untyped-def]
    with pytest.raises(ValueError, match="must be"):
        kestrin.read(SAMPLE, **arguments)


def test_a_reader_that_stops_raises_with_file_and_line_and_leaves_a_partial_board(edited: Callable[..., Path]) -> None:
    folder = edited("traces", ("WIR 2 ", "VER 9\nWIR 2 "))
    with pytest.raises(kestrin.Error) as raised:
        kestrin.read(folder)
    error = pickle.loads(pickle.dumps(raised.value))
    assert (error.file, str(error)) == (str(folder / "board.traces"), str(raised.value))
    line = (folder / "board.traces").read_text().splitlines().index("VER 9") + 1
    assert error.line == line
    assert f"board.traces:{line}: import stopped" in str(error)
    with pytest.raises(kestrin.Error):
        kestrin.dump(folder)
    partial = kestrin.read(folder, partial=True)
    assert partial.report["traces"].end == "stopped"
    assert partial.to_dict() == tool("board", folder)
    assert kestrin.dump(folder, partial=True) == tool("dump", folder)
    with pytest.raises(kestrin.Error, match="strict reader gave up") as raised:
        kestrin.dump(folder, strict=True)
    assert raised.value.line == line


def test_findings_and_reports_are_those_of_the_tool(edited: Callable[..., Path]) -> None:
    folder = edited("neutral", ("'U_1-3'", "'U_1-99'"), ("COMP R_2 ", "COMP R_1 "), ("###Nets", "###Nets\nFOO 1"))
    board = kestrin.read(folder)
    checked = tool("check", folder, "--format", "json")
    found = [
        {
            "severity": finding.severity,
            "code": finding.code,
            "message": finding.message,
            "at": [{"file": place.file, "line": place.line} for place in finding.at],
        }
        for finding in board.findings
    ]
    assert found == checked["findings"]
    assert {finding.code for finding in board.findings} >= {"unknown-pin", "duplicate-component"}
    assert [report.file for report in board.report.values()] == [file["file"] for file in checked["files"]]
    for report, file in zip(board.report.values(), checked["files"]):
        assert [report.lines, report.imported, report.ignored, report.skipped] == [
            file[name] for name in ("lines", "imported", "ignored", "skipped")
        ]
        lines = [(group.code, [line.line for line in group.lines]) for group in report.codes]
        assert lines == [(group["code"], [line["line"] for line in group["lines"]]) for group in file["codes"]]


def test_syntax_errors_are_those_of_the_tool(edited: Callable[..., Path]) -> None:
    folder = edited("traces", ("WIR 2 ", "WIR x\nWIR 2 "))
    wanted = tool("check", folder, "--strict", "--format", "json")["strict"]["errors"]
    report = kestrin.read(folder, strict=True, partial=True).report
    assert [{"line": error.line, "reason": error.reason} for error in report["traces"].syntax_errors] == wanted
    assert wanted and report["tech"].syntax_errors == []
    assert kestrin.read(folder).report["traces"].syntax_errors == []


# Works until signals come, and ends. The signals come by processor time, so a slow machine delays them, too.
WORKING = """
import gc, kestrin, os, signal, sys

def handle(*_):
    raise InterruptedError

def is_interrupted(work):
    try:
        signal.setitimer(signal.ITIMER_VIRTUAL, 0.02)
        work()
        return False
    except InterruptedError:
        return True

board = kestrin.read(sys.argv[1])
signal.signal(signal.SIGVTALRM, handle)
print(is_interrupted(lambda: board.draw(sys.argv[2])), os.path.exists(sys.argv[2]))
print(is_interrupted(lambda: board.to_dict()), gc.isenabled())
print(is_interrupted(lambda: board.findings))
print(is_interrupted(lambda: kestrin.compare(board, board)))
print(is_interrupted(lambda: kestrin.read(sys.argv[1])))
board.findings
"""


def test_a_signal_ends_the_waiting_and_python_ends_after_what_nobody_waits_for(large: Path, tmp_path: Path) -> None:
    picture = tmp_path / "a.png"
    script = [sys.executable, "-X", "dev", "-W", "error", "-c", WORKING, str(large), str(picture)]
    result = subprocess.run(script, capture_output=True, text=True, check=True)
    assert result.stdout.splitlines() == ["True False", "True True", "True", "True", "True"]
    assert picture.stat().st_size > 0 and not result.stderr


def test_a_signal_ends_a_long_reading(large: Path) -> None:
    class Enough(Exception):
        pass

    def handle(*_: object) -> None:
        raise Enough

    before = signal.signal(signal.SIGALRM, handle)
    try:
        for strict in (False, True):
            with pytest.raises(Enough):
                signal.setitimer(signal.ITIMER_REAL, 0.001)
                kestrin.dump(large, strict=strict)
    finally:
        signal.signal(signal.SIGALRM, before)


def test_other_threads_run_while_a_set_is_read(large: Path) -> None:
    ticks = 0
    reading = True

    def tick() -> None:
        nonlocal ticks
        while reading:
            ticks += 1
            time.sleep(0.001)

    thread = threading.Thread(target=tick)
    thread.start()
    boards = []
    before = ticks
    boards.append(kestrin.read(large))
    after = ticks
    reading = False
    thread.join()
    assert after - before > 5


def test_threads_read_sets_of_different_encodings_at_once(edited: Callable[..., Path]) -> None:
    folders = [edited("neutral", ("R_1", name), name=name) for name in ("RUE_\u00e9", "RUE_\u00c3\u00a9")]
    wanted = [kestrin.read(folder).to_dict() for folder in folders]
    failures = []

    def read(which: int) -> None:
        for _ in range(20):
            board = kestrin.read(folders[which])
            if board.to_dict() != wanted[which] or len(board.tracks.x1) != len(board.tracks):
                failures.append(which)

    threads = [threading.Thread(target=read, args=(i % 2,)) for i in range(4)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert not failures


def test_objects_keep_alive_what_they_need() -> None:
    board = kestrin.read(SAMPLE)
    pin = board.components["U_1"].pins[2]
    x1, outline, vias = board.tracks.x1, board.outline, board.nets["GND"].vias.x
    area = board.nets["GND"].areas[0].outline
    findings, report = board.findings, board.report["traces"]
    wanted = [pin.net.name, x1.tolist(), outline.tolist(), vias.tolist(), area.tolist(), repr(report)]
    del board
    gc.collect()
    junk = [kestrin.read(SAMPLE) for _ in range(3)]  # takes the memory if it was freed
    assert [pin.net.name, x1.tolist(), outline.tolist(), vias.tolist(), area.tolist(), repr(report)] == wanted
    assert not findings and junk
