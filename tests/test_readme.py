"""What the README shows is what happens."""

import re
import subprocess
import sys
from pathlib import Path

README = Path(__file__).resolve().parent.parent / "README.md"


def test_the_readmes_script_prints_what_stands_beside_it(tmp_path):
    blocks = re.findall(r"```(\w*)\n(.*?)```", README.read_text(encoding="utf-8"), re.DOTALL)
    script = next(text for language, text in blocks if language == "python")
    output = next(text for language, text in blocks if language == "")
    run = subprocess.run(
        [sys.executable, "-c", script], cwd=tmp_path, capture_output=True, text=True, check=False
    )
    assert run.stderr == ""
    assert run.stdout == output


def test_the_script_is_about_ten_lines_long():
    script = re.search(r"```python\n(.*?)```", README.read_text(encoding="utf-8"), re.DOTALL)
    assert len(script.group(1).strip().splitlines()) <= 12
