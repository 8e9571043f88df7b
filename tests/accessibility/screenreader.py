# SPDX-License-Identifier: GPL-3.0-or-later
"""What a screen reader would say of the program, and hands that act through the accessibility bus alone.

Listens to the same events as a screen reader does and writes down, a line each, what it would speak: what got
the focus (name, role, states, value, description), what was announced, the line that the caret came to.
"""
import re
import subprocess
import time

import gi

gi.require_version('Atspi', '2.0')
from gi.repository import Atspi, GLib  # noqa: E402

ROLES = {
    'push button': 'tlačítko', 'toggle button': 'přepínač', 'check box': 'zaškrtávací políčko',
    'radio button': 'volba', 'dialog': 'dialog', 'list': 'seznam', 'list item': 'položka', 'menu item': 'položka nabídky',
    'popup menu': 'nabídka', 'menu': 'nabídka', 'link': 'odkaz', 'heading': 'nadpis', 'document frame': 'text', 'document text': 'text',
    'text': 'pole pro text', 'table': 'tabulka', 'table cell': 'buňka', 'slider': 'posuvník', 'progress bar': 'průběh',
    'frame': 'okno', 'window': 'okno', 'image': 'obrázek', 'label': '', 'filler': '', 'panel': '', 'spin button': 'číslo',
    'animation': 'film', 'column header': 'záhlaví sloupce', 'table column header': 'záhlaví sloupce', 'entry': 'pole pro text',
}
# What controls are called in the program's own words, and nobody should hear.
RAW = re.compile(r'(frm|img|lbl|cmd|pic|chk|opt|txt|lst|prg|tmr)[A-Z]|(Image|Label|Text|Command|Frame)\d')
QUIET = .35   # seconds without an event after which everything has been said
PATIENCE = 20


class Gone(Exception):
    """What was looked for is not there."""


def states(thing):
    have, words = thing.get_state_set(), []
    if thing.get_role_name() == 'radio button':
        words.append('vybráno' if have.contains(Atspi.StateType.CHECKED) else 'nevybráno')
    elif have.contains(Atspi.StateType.CHECKABLE) or thing.get_role_name() == 'check box':
        words.append('zaškrtnuto' if have.contains(Atspi.StateType.CHECKED) else 'nezaškrtnuto')
    elif have.contains(Atspi.StateType.PRESSED) or have.contains(Atspi.StateType.CHECKED):
        words.append('stisknuto')
    return words


class Reader:
    """Everything that was said since the start, in said; the program's window, below which everything is; words that
    differ from run to run, with what is written down instead, in hidden."""

    def __init__(self):
        Atspi.init()
        self.said, self.context, self.last, self.window, self.hidden = [], [], 0, None, {}
        self.caret = 0
        self.listener = Atspi.EventListener.new(self.heard)
        for event in ('object:state-changed:focused', 'object:state-changed:showing', 'object:text-caret-moved',
                      'object:state-changed:checked',
                      'object:announcement'):
            self.listener.register(event)

    # --- hearing

    def say(self, line):
        line = ' '.join(line.split())
        for words, instead in self.hidden.items():
            line = line.replace(words, instead)
        if line:
            self.said.append(line)

    def heard(self, event):
        self.last = time.monotonic()
        try:
            if event.type.startswith('object:state-changed:focused') and event.detail1:
                self.focused(event.source)
            elif event.type.startswith('object:state-changed:showing'):
                if event.detail1 and event.source.get_role_name() == 'notification':
                    self.say('» ' + event.source.get_name())
            elif event.type.startswith('object:announcement'):
                self.say('» ' + str(event.any_data))
            elif event.type.startswith('object:text-caret-moved'):
                if self.has_focus(event.source):
                    self.caret_moved(event.source.get_text_iface(), event.detail1)
            elif event.type.startswith('object:state-changed:checked'):
                if self.has_focus(event.source):
                    self.say(', '.join(states(event.source)))
        except GLib.Error:
            pass  # what told of itself is gone already

    @staticmethod
    def has_focus(thing):
        return thing.get_state_set().contains(Atspi.StateType.FOCUSED)

    def caret_moved(self, text, offset):
        """A step along a line says the character or the word that the caret came to, any other the line."""
        line = Atspi.Text.get_text_at_offset(text, offset, Atspi.TextBoundaryType.LINE_START)
        step = abs(offset - self.caret)
        within = line.start_offset <= self.caret <= line.end_offset and offset != line.start_offset
        self.caret = offset
        if not within or step == 0:
            self.say('| ' + line.content)
        elif step == 1:
            self.say('| ' + Atspi.Text.get_text(text, offset, offset + 1))
        else:
            word = Atspi.Text.get_text_at_offset(text, offset, Atspi.TextBoundaryType.WORD_START)
            self.say('| ' + word.content)

    def focused(self, thing):
        if not thing.get_state_set().contains(Atspi.StateType.ENABLED):
            return  # covered by another screen before it was its turn
        around, above = [], thing.get_parent()
        while above and above.get_role_name() not in ('application', 'frame', 'window'):
            if above.get_name() and above.get_role_name() in ('dialog', 'list', 'popup menu', 'menu', 'table'):
                around.insert(0, (above.get_name(), ROLES.get(above.get_role_name()), above.get_description()))
            above = above.get_parent()
        for new in around:
            if new not in self.context:
                self.say(', '.join(part for part in new if part))
        self.context = around
        self.say(self.words(thing))

    def words(self, thing):
        role = thing.get_role_name()
        parts = [thing.get_name(), ROLES.get(role, f'?{role}?')] + states(thing)
        if thing.get_value_iface():
            parts.append(f'{Atspi.Value.get_current_value(thing):g}')
        text = thing.get_text_iface() if role in ('text', 'entry') else None
        if text:
            parts.append(Atspi.Text.get_text(text, 0, Atspi.Text.get_character_count(text)))
        parts.append(thing.get_description())
        return ', '.join(part for part in parts if part)

    def rest(self, seconds=QUIET):
        """Listens until nothing has happened for a while."""
        self.last = time.monotonic()
        until = self.last + PATIENCE
        context = GLib.MainContext.default()
        while time.monotonic() - self.last < seconds and time.monotonic() < until:
            if not context.iteration(False):
                time.sleep(.01)

    # --- finding

    def start(self, name):
        """Waits for the program called name."""
        until = time.monotonic() + 60
        while time.monotonic() < until:
            desktop = Atspi.get_desktop(0)
            for index in range(desktop.get_child_count()):
                app = desktop.get_child_at_index(index)
                if app and app.get_name() == name and app.get_child_count() > 0:
                    self.window = app.get_child_at_index(0)
                    # There is no window manager to give the window the keyboard.
                    subprocess.run(['xdotool', 'search', '--sync', '--onlyvisible', '--name', name, 'windowfocus'],
                                   stdout=subprocess.DEVNULL, check=True)
                    return
            self.rest(.1)
        raise Gone(f'no program {name}')

    def all(self, thing=None, depth=0):
        thing = thing or self.window
        yield depth, thing
        for index in range(thing.get_child_count()):
            child = thing.get_child_at_index(index)
            if child:
                yield from self.all(child, depth + 1)

    def find(self, role, name, wait=5):
        """The first thing of a role whose name begins so; the tree is asked anew until it is there."""
        until = time.monotonic() + wait
        while True:
            try:
                for _, thing in self.all():
                    if thing.get_role_name() == role and thing.get_name().startswith(name):
                        return thing
            except GLib.Error:
                pass  # it went while it was looked at
            if time.monotonic() > until:
                raise Gone(f'no {role} "{name}"')
            self.rest(.1)

    def names(self, role):
        return [thing.get_name() for _, thing in self.all() if thing.get_role_name() == role]

    @staticmethod
    def content(thing):
        return Atspi.Text.get_text(thing, 0, Atspi.Text.get_character_count(thing))

    # --- acting

    def step(self, words):
        self.said += ['', f'--- {words}']
        raw = [thing.get_name() for _, thing in self.all() if RAW.match(thing.get_name())]
        if raw:
            raise Gone(f'nothing but names of controls to be heard: {raw}')

    def go(self, key, name):
        """Presses an arrow until what is called name has been said."""
        for _ in range(15):
            self.key(key)
            if self.said[-1].startswith(name):
                return
        raise Gone(f'{key} does not lead to "{name}"')

    def slide(self, role, name, value):
        thing = self.find(role, name)
        Atspi.Value.set_current_value(thing, value)
        self.rest()
        self.say(f'{Atspi.Value.get_current_value(thing):g} z {Atspi.Value.get_maximum_value(thing):g}')

    def cells(self, name, rows):
        """The headings of a table and its first cells, each as it is told of by the table."""
        table = self.find('table', name).get_table_iface()
        columns = range(Atspi.Table.get_n_columns(table))
        self.say('záhlaví: ' + ', '.join(Atspi.Table.get_column_description(table, column) for column in columns))
        for row in range(rows):
            cells = [Atspi.Table.get_accessible_at(table, row, column) for column in columns]
            self.say(' | '.join(f'{cell.get_name()} [{ROLES[cell.get_role_name()]}]' for cell in cells))
        self.say(f'řádků: {Atspi.Table.get_n_rows(table)}')

    def press(self, role, name):
        thing = self.find(role, name)
        if not thing.get_action_iface():
            raise Gone(f'{role} "{name}" has no action')
        Atspi.Action.do_action(thing, 0)
        self.rest()

    def key(self, *names):
        for name in names:
            subprocess.run(['xdotool', 'key', '--clearmodifiers', name], check=True)
            self.rest()

    def type(self, role, name, text):
        thing = self.find(role, name)
        if not Atspi.EditableText.set_text_contents(thing, text):
            raise Gone(f'{role} "{name}" takes no text')
        self.rest()

    def read(self, role, name, lines=3):
        """The first lines of a text, as they are asked for line by line."""
        thing = self.find(role, name)
        text, at, count = thing.get_text_iface(), 0, Atspi.Text.get_character_count(thing)
        while lines > 0 and at < count:
            line = Atspi.Text.get_text_at_offset(text, at, Atspi.TextBoundaryType.LINE_START)
            if line.content.strip():
                self.say('| ' + line.content)
                lines -= 1
            at = max(line.end_offset, at + 1)
        if count == 0:
            raise Gone(f'{role} "{name}" is empty')
