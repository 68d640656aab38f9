"""A game of three players by keyboard alone, every figure read back over AT-SPI.

Usage: keyboard_game.py PROGRAM, in an empty folder, on a display with a window manager.
"""

import os
import subprocess
import sys

import pyatspi
from gi.repository import GLib
from screen_reader import ROLES_WITH_NAMES, Program, enable_accessibility, has, until

failures = 0


def check(holds, what, found=""):
    global failures
    print(f"ok    {what}" if holds else f"FAIL  {what} (found: {found!r})", flush=True)
    failures += not holds
    return holds


def check_figure(game, heading, expected):
    until(lambda: game.figure(heading) == expected, 3)
    check(game.figure(heading) == expected, f"{heading}: {expected}", game.figure(heading))


def check_said(game, expected):
    check(until(lambda: expected in game.said, 3), f"said: {expected}", game.said)
    game.said.clear()


def check_names(game, title):
    window = game.window(title)
    if not check(window is not None, f'the window "{title}" is open'):
        return
    check(window.getRole() in (pyatspi.ROLE_FRAME, pyatspi.ROLE_DIALOG), f"{title}: it is a window",
          window.getRoleName())
    named = [control for control in game.controls(window)
             if control.getRole() in ROLES_WITH_NAMES or has(control, pyatspi.STATE_FOCUSABLE)]
    nameless = [control.getRoleName() for control in named if not control.name.strip()]
    check(not nameless, f"{title}: each of {len(named)} controls has a name", nameless)
    # A caption may share its words with the control that it stands beside.
    names = [(control.name, control.getRoleName()) for control in named]
    twice = {name for name in names if names.count(name) > 1}
    check(not twice, f"{title}: no two controls have the same name", twice)


def check_tab_order(game, what, first, expected):
    game.tab_to(first)
    found = game.tab_round()
    matches = len(found) == len(expected) and all(map(str.startswith, found, expected))
    check(matches, f"Tab goes through {len(expected)} controls {what}",
          [pair for pair in zip(found, expected) if not pair[0].startswith(pair[1])] or found)


def column(player, *rows):
    return [f"{row}, Player {player}" for row in rows]


def open_list(game):
    return next((c for c in game.controls() if c.getRole() == pyatspi.ROLE_LIST), None)


def set_up(game):
    check_names(game, "Korvane Astrell Manager II")
    game.tab_to("Number of Players")
    check(game.focused.queryValue().currentValue == 6, "setup starts with six players")
    game.press("Down", "Down", "Down")
    check(game.focused.queryValue().currentValue == 3, "three players are heard as three",
          game.focused.queryValue().currentValue)
    table = [name for player in (1, 2, 3) for name in column(player, "Race", "Enviro Comp.")]
    table[0:2] = ["Name, Player 1", "Race, Player 1", "Space Docks, Player 1",
                  "Enviro Comp., Player 1"]
    check_tab_order(game, "during setup", "Number of Players",
                    ["Number of Players", "Normal", "START", *table, "Add", "Remove",
                     "Trade, Player 1"])
    for player, race in enumerate(("Altheran", "Quorvi", "Ith-Veran"), start=1):
        game.tab_to(f"Race, Player {player}")
        game.press("Down")
        races = until(lambda: open_list(game), 3)
        check(races and races.name == f"Race, Player {player}", "Down opens the list of races",
              races and races.name)
        game.press(*["Down"] * (player - 1), "Return")
        check_figure(game, f"Race, Player {player}", race)
    for player in (1, 2, 3):
        check(int(game.figure(f"Planets, Player {player}")) > 0, f"player {player} has planets")
    game.tab_to("START")
    game.press("space")
    check(game.find("START") is None, "START ends setup")
    check(int(game.figure("Influence, place 1")) > 0, "the order of play shows the figures")
    check_names(game, "Korvane Astrell Manager II")


def check_play_order(game):
    boxes = [f"Enviro Comp., Player {player}" for player in (1, 2, 3)]
    check_tab_order(game, "in play", "Name, Player 1",
                    ["Name, Player 1", "Space Docks, Player 1", *boxes, "All planets",
                     "Planet, row 1", "Planets, scroll position", "Add", "Remove",
                     "Trade, Player 1"])
    panels = ("Order of play", "Planet board", "Trade", "Player table")
    for panel in panels:
        check(game.find(panel) is not None, f'the panel "{panel}" has its name')


def check_explanation(game, start, *words):
    """What a screen reader says more of a control when asked."""
    control = game.find(start)
    text = control.description if control else ""
    check(all(word in text for word in words), f"{start} is explained: {text!r}", words)


def who(player):
    return "Ada" if player == 2 else f"Player {player}"


def explain(game):
    for player in (1, 2, 3):
        for figure in ("Resources", "Influence", "Planets", "Receive Credits",
                       "Green technology cost", "Blue technology cost", "Red technology cost",
                       "Yellow technology cost"):
            heading = f"{figure}, {who(player)}"
            check_explanation(game, heading, f"{game.figure(heading)} = ")
        check_explanation(game, f"Space Docks, {who(player)}: ", "Space Docks", "influence")
    check_explanation(game, "Receive Credits, Player 1", "resources")
    check_explanation(game, "Planet, row 1: ", "belongs to")
    check_explanation(game, "Resources and influence, row 1", "resource", "influence")
    check_explanation(game, "Trade, Player 1", "trades with Ada")


def name_a_player(game):
    game.tab_to("Name, Player 1")
    game.press("Right", "Return")
    check_names(game, "Player 2")
    game.type("Ada")
    game.tab_to("Magenta")
    game.press("space")
    game.tab_to("OK")
    game.press("space")
    check_figure(game, "Name, Player 2", "Ada")
    check_figure(game, "Planets of Player 2", "Ada")
    order = [game.figure(f"Place {place}") for place in (1, 2, 3)]
    check("Ada" in order, "the order of play calls her Ada", order)


def tick_a_box(game):
    """Through its action, as a screen reader's user does."""
    box = game.find("Enviro Comp., Player 3")
    before = int(game.figure("Influence, Player 3"))
    docks = int(game.figure("Space Docks, Player 3"))
    step = -docks if has(box, pyatspi.STATE_CHECKED) else docks
    game.renamed.clear()
    actions = box.queryAction()
    names = [actions.getName(index) for index in range(actions.nActions)]
    actions.doAction(names.index("Toggle"))
    check_figure(game, "Influence, Player 3", str(before + step))
    check(f"Influence, Player 3: {before + step}" in game.renamed,
          "a reader that looks for it is told of the new influence", game.renamed)


def build_a_dock(game):
    game.tab_to("Space Docks, Player 1")
    game.press("Left", "Up")
    check_figure(game, "Space Docks, Player 3", "2")
    check(game.focused.queryValue().currentValue == 2, "two docks are heard as two",
          game.focused.queryValue().currentValue)


def give_a_planet(game):
    game.tab_to("All planets")
    game.press("Down", "space")
    planet = game.figure("Planet, row 1")
    planets = int(game.figure("Planets, Ada"))
    pool = game.figure("Planet, row 2")
    game.tab_to("Planet, row 1")
    game.press("Return", "Down")
    check_said(game, f"Planet, row 1, over Ada: {planet}")
    game.press("Escape")
    check_figure(game, "Planets, Ada", str(planets))
    check_figure(game, "Planet, row 1", planet)
    game.press("Return", "Down", "Return")
    check_figure(game, "Planets, Ada", str(planets + 1))
    check_figure(game, "Planet, row 1", pool)
    game.tab_to("Neutral", "shift+Tab")
    game.press("Down", "Down", "Return")
    rows = [game.figure(f"Planet, row {row}") for row in range(1, 13)]
    check(planet in rows, f"{planet} is Ada's", rows)


def credits_of(game, player):
    return int(game.figure(f"Receive Credits, {who(player)}"))


def agree(game):
    credits = [credits_of(game, player) for player in (1, 2)]
    check(game.find("There are no Trade Agreements in play.") is not None, "no agreement yet")
    game.tab_to("Add")
    game.press("Return")
    check_said(game, "Select first player...")
    game.tab_to("Trade, Player 1")
    game.press("Return", "Right", "space")
    check_said(game, "Ada and make a TA")  # with a player who has no name
    check(until(lambda: game.find("There is one Trade Agreement in play."), 3) is not None,
          "one agreement is in play")
    for player, before in zip((1, 2), credits):
        check(until(lambda: credits_of(game, player) > before, 3),
              f"the credits of player {player} rise from {before}", credits_of(game, player))


def pass_a_law(game):
    before = credits_of(game, 1)
    game.press("alt+t")
    game.press("Down", "Return")
    check(until(lambda: credits_of(game, 1) > before, 3),
          f"Free Trade raises the credits of player 1 from {before}", credits_of(game, 1))
    law = next(item for menu in game.window("Korvane Astrell Manager II")
               for top in menu if top.name == "Trade"
               for popup in top for item in popup if item.name == "Free Trade")
    check(has(law, pyatspi.STATE_CHECKED), "the law is marked as passed")
    check("Free Trade: checked" in game.said, "its check mark is said", game.said)
    check_said(game, "FREE TRADE!")


def figures(game):
    return sorted(control.name for control in game.controls() if ": " in control.name)


def save_and_load(game):
    game.press("F2")
    check_names(game, "Save Game")
    game.tab_to("Filename")
    game.press("ctrl+a")
    game.type("evening")
    game.press("Return")
    check(until(lambda: os.path.exists("evening.ksm"), 3), "the game is saved")
    saved = figures(game)
    game.tab_to("Space Docks")
    game.press("Up", "Up")
    played = figures(game)
    check(played != saved, "the game goes on")
    game.press("ctrl+z", "ctrl+z")
    check(until(lambda: figures(game) == saved, 3), "what was done is taken back")
    check(any(text.startswith("Undo Space Docks") for text in game.said), "and said", game.said)
    game.press("ctrl+y", "ctrl+y")
    check(until(lambda: figures(game) == played, 3), "and done again")
    game.press("F1")
    check_names(game, "Load Game")
    game.tab_to("Saved games")
    game.press("space", "Down", "Return")  # the game kept while it is played is listed first
    until(lambda: figures(game) == saved, 3)
    check(figures(game) == saved, "the loaded game is the saved one",
          set(figures(game)) ^ set(saved))


def visit_windows(game):
    # Windows that stay open beside the game are closed as any window is, not by Escape.
    for key, title, close in (("F5", "Korvane Astrell Technology Flowchart (Standard)", "Escape"),
                              ("F6", "Korvane Astrell Technology Flowchart (Corrin's End)",
                               "Escape"),
                              ("alt+a", "About Korvane Astrell Manager", "Escape"),
                              ("alt+n", "Notes", "alt+F4")):
        game.press(key)
        check_names(game, title)
        game.press(close)
    roll_dice(game)
    # "Tech" has no letter of its own: it stands right of "Options", "Notes" and "Dice Roller".
    game.press("alt+o", "Right", "Right", "Right")
    game.press("Up", "Return")
    check_names(game, "Tech cost modifiers")
    cost = int(game.figure("Green technology cost, Player 1"))
    game.tab_to("Green cost modifier")
    game.press("Up")
    check_figure(game, "Green cost modifier", "+1")
    check_figure(game, "Green technology cost, Player 1", str(cost + 1))
    game.press("Escape")


def roll_dice(game):
    game.press("alt+d")
    check_names(game, "Dice Roller")
    game.tab_to("Number of dice")
    game.press("Up", "Up")
    check_figure(game, "Number of dice", "3")
    game.tab_to("Roll!")
    game.press("space")
    dice = [game.figure(f"Dice place {place}") for place in range(1, 8)]
    check(sum(die is not None for die in dice) == 3, "three dice are rolled", dice)
    check_said(game, ", ".join(die for die in dice if die))
    game.press("alt+F4")


def move_the_window(game):
    def place():
        window = game.window("Korvane Astrell Manager II").queryComponent()
        return tuple(window.getPosition(pyatspi.DESKTOP_COORDS))
    before = place()
    subprocess.run(["xdotool", "getactivewindow", "windowmove", "30", "40"], check=True)
    until(lambda: place() != before, 3)
    until(lambda: False, 0.5)
    check(place() != before, "the window stays where it is moved", place())


def main():
    enable_accessibility()
    game = Program([sys.argv[1]])
    if not check(game.application is not None, "the program is on the accessibility bus"):
        return 1
    try:
        until(lambda: has(game.window("Korvane Astrell Manager II"), pyatspi.STATE_ACTIVE))
        for step in (set_up, check_play_order, name_a_player, tick_a_box, build_a_dock,
                     give_a_planet, agree, explain, pass_a_law, save_and_load, visit_windows,
                     move_the_window):
            print(f"-- {step.__name__.replace('_', ' ')}")
            step(game)
        game.press("ctrl+x")
        check(until(lambda: game.process.poll() is not None, 5) and game.process.returncode == 0,
              "Ctrl+X ends the program")
    except GLib.GError as error:
        check(False, f"the program answers (it ended with {game.process.poll()})", str(error))
    finally:
        game.process.kill()
    print(f"{failures} failures" if failures else "All of it can be heard, and played by keyboard.")
    return 1 if failures else 0


sys.exit(main())
