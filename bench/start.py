#!/usr/bin/python3
"""start.py [ROUNDS]: how long from starting PlotVue, with a capture copied, to the first drawn chart.

Beside it, in turns, the smallest program that the toolkit allows; the ratio says what PlotVue adds. Build first:
cmake --preset bench && cmake --build --preset bench
"""

import statistics
import subprocess
import sys
from pathlib import Path

sys.dont_write_bytecode = True
top = Path(__file__).resolve().parent.parent
sys.path.insert(0, str(top / "tests/e2e"))
from desktop import SAMPLES, Desktop  # noqa: E402

build = top / "build/bench"
programs = {"smallest": build / "bench/smallest", "plotvue": build / "src/plotvue"}
rounds = int(sys.argv[1]) if len(sys.argv) > 1 else 30

taken = {name: [] for name in programs}
with Desktop(programs["plotvue"], manager=None) as desktop:
    desktop.copy((SAMPLES / "product.txt").read_bytes())
    for number in range(rounds + 1):  # the first one fills the caches and is not counted
        for name, program in programs.items():
            result = subprocess.run([build / "bench/firstpaint", program], env=desktop.env, cwd=desktop.home,
                                    stdout=subprocess.PIPE, check=True)
            if number:
                taken[name].append(float(result.stdout))

medians = {name: statistics.median(times) for name, times in taken.items()}
for name, times in taken.items():
    print(f"{name:8}  median {medians[name]:6.1f} ms   least {min(times):6.1f}   most {max(times):6.1f}")
print(f"plotvue / smallest: {medians['plotvue'] / medians['smallest']:.2f}")
