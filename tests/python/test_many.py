"""Tables of many boards on a cluster."""

from __future__ import annotations

import os
import shutil
import signal
import time
from pathlib import Path
from typing import Any, Iterator

import kestrin
import pytest
from conftest import generate

pandas = pytest.importorskip("pandas")
pytest.importorskip("dask.dataframe")
distributed = pytest.importorskip("distributed")

SETS = 200
MODELS = 5  # the sets are copies of so many
DAMAGED, MISSING = 50, 150
PLACES = ["file"]  # the columns that differ between copies


@pytest.fixture(scope="module")
def archive(tmp_path_factory: pytest.TempPathFactory) -> list[Path]:
    """Sets of different sizes, one of them damaged and one missing."""
    folder = tmp_path_factory.mktemp("archive")
    models = [generate(folder / f"model{i}", 100 * (i + 1)) for i in range(MODELS)]
    paths = []
    for i in range(SETS):
        paths.append(folder / f"set{i:03}")
        shutil.copytree(models[i % len(models)], paths[-1])
    with open(paths[DAMAGED] / "board.traces", "a", encoding="ascii") as traces:
        traces.write("VER 9\n")
    shutil.rmtree(paths[MISSING])
    return paths


@pytest.fixture(scope="module")
def client(tmp_path_factory: pytest.TempPathFactory) -> Iterator[Any]:
    import dask

    dask.config.set({"temporary-directory": str(tmp_path_factory.mktemp("dask"))})
    with distributed.LocalCluster(n_workers=2, threads_per_worker=1, dashboard_address=":0") as cluster:
        with distributed.Client(cluster) as client:
            yield client


def check(archive: list[Path], results: dict[str, Any]) -> None:
    """The tables are those of each set that can be read, and the others are among the failures."""
    failures = results["failures"].set_index("set")
    assert set(failures.index) == {str(archive[DAMAGED]), str(archive[MISSING])}
    damaged, missing = failures.loc[str(archive[DAMAGED])], failures.loc[str(archive[MISSING])]
    assert "import stopped" in damaged.error and damaged.file == str(archive[DAMAGED] / "board.traces")
    lines = (archive[DAMAGED] / "board.traces").read_text().count("\n")
    assert (damaged.line, missing.line) == (lines, 0)
    assert "No such file" in missing.error and missing.file == str(archive[MISSING])
    models = [kestrin.read(path).tables() for path in archive[:MODELS]]
    for name in models[0]:
        readable = [i for i in range(SETS) if i not in (DAMAGED, MISSING)]
        wanted = pandas.concat([models[i % MODELS][name].assign(set=str(archive[i])) for i in readable])
        pandas.testing.assert_frame_equal(
            results[name].drop(columns=PLACES, errors="ignore").reset_index(drop=True),
            wanted[results[name].columns].drop(columns=PLACES, errors="ignore").reset_index(drop=True),
        )


def test_an_archive_becomes_tables_and_a_lost_worker_loses_nothing(archive: list[Path], client: Any) -> None:
    tables = kestrin.tables(archive)
    assert all(table.npartitions == SETS for table in tables.values())
    futures = client.compute(list(tables.values()))
    victim = None
    while victim is None:  # until a worker has results to lose
        time.sleep(0.01)
        victim = next((worker for worker, keys in client.has_what().items() if keys), None)
    os.kill(client.run(os.getpid, workers=[victim])[victim], signal.SIGKILL)
    assert not all(future.done() for future in futures)
    check(archive, dict(zip(tables, client.gather(futures))))


def test_an_archive_may_be_empty_but_is_no_single_path(archive: list[Path]) -> None:
    tables, one = kestrin.tables([]), kestrin.tables(archive[:1])
    for name, table in tables.items():
        assert list(table.compute(scheduler="threads").columns) == list(one[name].columns) and len(table) == 0
    for path in (archive[0], str(archive[0])):
        with pytest.raises(TypeError, match="one path"):
            kestrin.tables(path)  # type: ignore[arg-type]


def test_without_a_cluster_it_runs_in_threads(archive: list[Path]) -> None:
    import dask

    tables = kestrin.tables(archive[DAMAGED - 3 : DAMAGED + 3])
    nets, failures = dask.compute(tables["nets"], tables["failures"], scheduler="threads")
    assert nets["set"].nunique() == 5
    assert failures["set"].tolist() == [str(archive[DAMAGED])]
