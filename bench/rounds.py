"""Rounds of measuring, the sides taking turns, and what follows from them."""

import statistics
from collections.abc import Callable


def runs_for(run: Callable[[int], float], seconds: float) -> int:
    """How many runs of a workload fill so much time."""
    count = 1
    while True:
        each = run(count)
        if each * count >= seconds * 1e9 / 4 or count >= 1 << 24:
            return max(1, round(seconds * 1e9 / each))
        count *= 2


def interleaved(runs: dict[str, Callable[[int], float]], count: int, rounds: int,
                before_round: Callable[[], None] = lambda: None) -> dict[str, list[float]]:
    """Each side's times of all rounds. Every round begins with another side."""
    sides = list(runs)
    times: dict[str, list[float]] = {side: [] for side in sides}
    for number in range(rounds):
        turn = number % len(sides)
        for side in sides[turn:] + sides[:turn]:
            before_round()
            times[side].append(runs[side](count))
    return times


def ratio(times: list[float], base: list[float]) -> float:
    """The median of the rounds' ratios: what slows down one round slows down both sides of it."""
    return statistics.median(one / other for one, other in zip(times, base, strict=True))
