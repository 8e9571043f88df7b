#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Finds Czech texts in the sources below DIR that do not pass through Texts::tr: texts.py DIR. A text is Czech when it has
an accent, or when it is shown or said. Names of files, and what only sorts letters, are no texts for the user."""
import pathlib
import re
import sys

TOKEN = re.compile(r'//[^\n]*|/\*.*?\*/|u?"(?:[^"\\\n]|\\.)*"|\'(?:[^\'\\\n]|\\.)+\'', re.S)
CZECH = re.compile('[áčďéěíňóřšťúůýžÁČĎÉĚÍŇÓŘŠŤÚŮÝŽ]')
TRANSLATED = re.compile(r'(tr|QT_TRANSLATE_NOOP)\($|QT_TRANSLATE_NOOP\("Texts",$')
SHOWN = re.compile(r'\b(setWindowTitle|setText|setCaption|setTip|setToolTip|setTitle|setAccessibleName|addAction|ZobrazZpravu|HookMessage)'
                   r'\((QStringLiteral\()?$|\b(drawText|dressLabel|dressAsText|dressCheckBox)\([^;"{]*QStringLiteral\($'
                   r'|\bmakeButton\(QStringLiteral\("[^"]*"\),QStringLiteral\($')
# What the book itself says: units and times as its recipes write them, names of its menus.
OF_THE_BOOK = {'units.cpp', 'bookwords.cpp', 'foundtimes.cpp', 'menutargets.cpp'}
NO_TEXTS = {'"Velisa sarn"', '"zvuky\\\\č%1.wav"', '"ÁÄĎÉĚÍŇÓÖŤÚŮÜÝ"'}


def faults(path):
    source = path.read_text(encoding='utf-8')
    before, last = 0, ''  # what stands between two literals
    for token in TOKEN.finditer(source):
        text = token.group()
        between = source[before:token.start()].strip()
        if text.startswith(('//', '/*', "'")):
            continue
        opened = re.sub(r'\s+', '', source[max(0, token.start() - 300):token.start()])
        continues = between == '' and last != ''
        good = TRANSLATED.search(opened) is not None or (continues and last == 'good')
        last, before = ('good' if good else 'bad'), token.end()
        shown = path.parent.name != 'platform' and SHOWN.search(opened) and re.search('[A-Za-z]{2}', text)
        if (CZECH.search(text) or shown) and not good and text.removeprefix('u') not in NO_TEXTS:
            yield f'{path}:{source.count(chr(10), 0, token.start()) + 1}: {text}'


found = [fault for file in sorted(pathlib.Path(sys.argv[1]).rglob('*')) if file.suffix in ('.h', '.cpp') and file.name not in OF_THE_BOOK
         for fault in faults(file)]
print('\n'.join(found) or 'every Czech text can be translated')
sys.exit(1 if found else 0)
