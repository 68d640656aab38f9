"""Kills programs that play one after another in one folder, and looks at the games they kept.

Usage: kill_and_load.py PROGRAM KILLS, where the program plays at random. After each kill the
running game must be kept as it was after the last change that was done, or after the one that was
just being done, and the three games that were started last as they were played last.
"""

import collections
import os
import random
import subprocess
import sys
import tempfile
import time

LONGEST_PLAY = 0.6  # seconds
PROGRAMS = 8  # in one folder


def games_in(text):
    """The games that were told, each by its start and how it stands; the last line may be cut."""
    return [tuple(line.split()) for line in text.decode().split("\n")[:-1]]


def play_and_kill(program, seed, seconds):
    process = subprocess.Popen([program, str(seed)], stdout=subprocess.PIPE,
                               stderr=subprocess.DEVNULL)
    time.sleep(seconds)
    process.kill()
    return games_in(process.communicate()[0])


def kept_games(program):
    return games_in(subprocess.run([program], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                                   check=True).stdout)


def replayed(program, seed, count):
    """How the first games of a program stand that plays alone."""
    with tempfile.TemporaryDirectory() as folder:
        with subprocess.Popen([program, str(seed)], stdout=subprocess.PIPE, cwd=folder,
                              stderr=subprocess.DEVNULL) as process:
            lines = [process.stdout.readline() for _ in range(count)]
            process.kill()
    return [stand for _, stand in games_in(b"".join(lines))]


def check_running_game(program, seed, done, kept, is_first):
    if not kept or (not done and not is_first):
        assert len(done) <= 1, f"seed {seed}: nothing kept of {len(done)} changes"
        return "killed before the first change was kept"
    if done and kept[0] == done[-1]:
        return "the game after the last change done"
    if is_first:
        stands = [stand for _, stand in done] + [kept[0][1]]
        assert replayed(program, seed, len(stands)) == stands, f"seed {seed}: {len(done)} changes"
    return "the game after the change that was being done"


def main():
    program, kills = os.path.abspath(sys.argv[1]), int(sys.argv[2])
    outcomes = collections.Counter()
    generator = random.Random(9)
    for number in range(kills):
        if number % PROGRAMS == 0:
            folder = tempfile.TemporaryDirectory()
            os.chdir(folder.name)
            last = {}
        seed = number % 20
        done = play_and_kill(program, seed, generator.uniform(0, LONGEST_PLAY))
        kept = kept_games(program)
        outcomes[check_running_game(program, seed, done, kept, number % PROGRAMS == 0)] += 1
        last.update({start: stand for start, stand in done if start != "0"})
        for start in sorted(last, key=int)[-3:]:
            found = dict(reversed(kept)).get(start)
            assert found, f"seed {seed}: the game of {start} is not kept in {kept}"
            assert start == kept[0][0] or found == last[start], f"seed {seed}: {start} is too old"
        outcomes[f"{len(kept)} games kept"] += 1
        last.update({start: stand for start, stand in reversed(kept) if start != "0"})
    os.chdir("/")
    for outcome, count in outcomes.most_common():
        print(f"{count:5} {outcome}")


main()
