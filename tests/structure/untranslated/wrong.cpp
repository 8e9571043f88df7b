// "Poznámka" v komentáři nevadí.
const char* const kTable[] = {QT_TRANSLATE_NOOP("Texts", "Zpět"), QT_TRANSLATE_NOOP("Texts",
                                                                                    "Přílohy "
                                                                                    "a omáčky")};
void show() {
    setText(Texts::tr("Není vybrán recept"));
    setText(QStringLiteral("Není přeloženo"));
    setTip(QStringLiteral("Konec"));
    painter.drawText(place, QStringLiteral("Vyberte recept"));
}

// SPDX-License-Identifier: GPL-3.0-or-later
