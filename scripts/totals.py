"""Adds up the test reports of one run and prints the closing line."""

import sys
import xml.etree.ElementTree as ElementTree
from pathlib import Path


def main() -> int:
    folder, failed_steps = Path(sys.argv[1]), int(sys.argv[2])
    passed = failed = skipped = 0
    for report in sorted(folder.glob("*.xml")):
        for suite in ElementTree.parse(report).getroot().iter("testsuite"):
            tests = int(suite.get("tests", 0))
            bad = int(suite.get("failures", 0)) + int(suite.get("errors", 0))
            left_out = int(suite.get("skipped", 0)) + int(suite.get("disabled", 0))
            passed += tests - bad - left_out
            failed += bad
            skipped += left_out
    line = f"{passed} passed, {failed} failed"
    if skipped:
        line += f", {skipped} skipped"
    if failed_steps:
        line += f"; {failed_steps} step(s) failed"
    print(line)
    return 1 if failed or failed_steps else 0


if __name__ == "__main__":
    sys.exit(main())
