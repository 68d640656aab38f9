"""Kills a program in the middle of a game, again and again, and loads what it kept.

Usage: kill_and_load.py PROGRAM KILLS, where the program plays at random. What it goes on with must
be the game after the last change that was done, or after the one that was just being done.
"""

import collections
import os
import random
import subprocess
import sys
import tempfile
import time

LONGEST_PLAY = 0.6  # seconds


def play_and_kill(program, seed, seconds):
    """The game at first and after each change, as the program told it until it was killed."""
    process = subprocess.Popen([program, str(seed)], stdout=subprocess.PIPE,
                               stderr=subprocess.DEVNULL)
    time.sleep(seconds)
    process.kill()
    told = process.stdout.read().decode()
    process.wait()
    return told.split("\n")[:-1]  # the last line may be cut


def first_games(program, seed, count):
    with subprocess.Popen([program, str(seed)], stdout=subprocess.PIPE,
                          stderr=subprocess.DEVNULL) as process:
        games = [process.stdout.readline().decode().strip() for _ in range(count)]
        process.kill()
    return games


def main():
    program, kills = sys.argv[1], int(sys.argv[2])
    outcomes = collections.Counter()
    generator = random.Random(9)
    for number in range(kills):
        seed = number % 20
        with tempfile.TemporaryDirectory() as folder:
            os.chdir(folder)
            done = play_and_kill(program, seed, generator.uniform(0, LONGEST_PLAY))
            kept = os.path.exists("autosave.ksm")
            loaded = first_games(program, seed, 1)[0]
            if not kept:
                outcomes["killed before the first change was kept"] += 1
                assert len(done) <= 2, f"seed {seed}: nothing kept of {len(done) - 1} changes"
            elif done and loaded == done[-1]:
                outcomes["the game after the last change done"] += 1
            else:
                os.mkdir("again")
                os.chdir("again")
                games = first_games(program, seed, len(done) + 1)
                assert games[:-1] == done, f"seed {seed}: play is not the same again"
                assert loaded == games[-1], f"seed {seed}, {len(done)} changes: {loaded}"
                outcomes["the game after the change that was being done"] += 1
            os.chdir("/")
    for outcome, count in outcomes.most_common():
        print(f"{count:5} {outcome}")


main()
