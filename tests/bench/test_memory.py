"""How much memory large results and large attachments take, in processes of their own."""

import os
import random
import subprocess
import sys

import pytest

import cvdeveloper

pytestmark = pytest.mark.skipif("asan" in os.environ.get("LD_PRELOAD", ""),
                                reason="sanitizers need memory of their own")

MEASURED = """
import sys
import cvdeveloper

def memory(name):
    for line in open("/proc/self/status"):
        if line.startswith(name):
            return int(line.split()[1]) * 1024

app = cvdeveloper.connect(sys.argv[1])
open("/proc/self/clear_refs", "w").write("5")
idle = memory("VmRSS")
{work}
peak = memory("VmHWM") - idle
{result}
"""


def measured(folder, work, result="print(peak)"):
    script = MEASURED.format(work=work, result=result)
    run = subprocess.run([sys.executable, "-c", script, str(folder)], capture_output=True,
                         text=True, check=False, env={**os.environ, "TMPDIR": str(folder)})
    assert run.stderr == ""
    return [int(number) for number in run.stdout.split()]


@pytest.fixture(scope="module")
def sample(tmp_path_factory):
    folder = tmp_path_factory.mktemp("speicher") / "buero"
    cvdeveloper.host.create(str(folder), sample=True)
    return folder


def test_result_takes_at_most_twice_its_values_and_sixteen_bytes_a_field(sample):
    work = """
rs = app.oBase.CV_GetRecordset("SELECT a.* FROM AKT AS a, AKT AS b, AKT AS c LIMIT 100000")
"""
    result = """
def size(value):
    return 0 if value is None else len(value.encode()) if isinstance(value, str) else 8

fields, values, rows, sizes = rs.Fields.Count, 0, 0, {}
for row in rs:
    key = row["DSN"]
    if key not in sizes:
        sizes[key] = sum(size(value) for value in row.values())
    values += sizes[key]
    rows += 1
print(peak, rows, 2 * values + 16 * fields * rows)
"""
    peak, rows, allowed = measured(sample, work, result)
    assert rows == 100_000
    assert peak <= allowed


def test_attachments_larger_than_memory_allowed_are_streamed(sample):
    size = 192 << 20
    numbers = random.Random(1)
    with open(sample / "gross.bin", "wb") as file:
        for _ in range(size >> 20):
            file.write(numbers.randbytes(1 << 20))
    [peak] = measured(sample, """
app.AKT_Blob_Add("A", sys.argv[1] + "/gross.bin")
app.BLOB_SaveAs(app.BLOB_GetInfo("A"), sys.argv[1], "zurück.bin")
""")
    assert subprocess.run(["cmp", sample / "gross.bin", sample / "zurück.bin"],
                          check=False).returncode == 0
    assert peak < 64 << 20
