#include <QMap>

#include "score.h"

namespace sarne::disc {
namespace {

constexpr int kOctave = 12;

/// How far the letter is from c; -1 when it is no note.
int stepOf(QChar letter) {
    switch (letter.toLower().unicode()) {
        case 'c':
            return 0;
        case 'd':
            return 2;
        case 'e':
            return 4;
        case 'f':
            return 5;
        case 'g':
            return 7;
        case 'a':
            return 9;
        case 'b':
            return 10;
        case 'h':
            return 11;
        default:
            return -1;
    }
}

/// Reads the letter and its accidental and takes them off \a text; -1 when there is none.
int takeStep(QString& text) {
    const int step = text.isEmpty() ? -1 : stepOf(text.front());
    if (step < 0) return -1;
    const bool isVowel = QStringLiteral("aeAE").contains(text.front());
    text.remove(0, 1);
    if (text.startsWith(QLatin1String("is"))) {
        text.remove(0, 2);
        return (step + 1) % kOctave;
    }
    const QString flat = isVowel ? QStringLiteral("s") : QStringLiteral("es");
    if (!text.startsWith(flat)) return step;
    text.remove(0, flat.size());
    return (step + kOctave - 1) % kOctave;
}

}  // namespace

int pitchOf(const QString& note) {
    QString rest = note;
    const int step = takeStep(rest);
    if (step < 0 || rest.size() != 1 || rest < QStringLiteral("1") || rest > QStringLiteral("8")) return -1;
    return kOctave * (rest.toInt() + 1) + step;
}

QList<int> chordTones(const QString& chord) {
    static const QMap<QString, QList<int>> kinds{
        {QString(), {0, 4, 7}},
        {QStringLiteral("m"), {0, 3, 7}},
        {QStringLiteral("7"), {0, 4, 7, 10}},
        {QStringLiteral("m7"), {0, 3, 7, 10}},
        {QStringLiteral("maj7"), {0, 4, 7, 11}},
        {QStringLiteral("6"), {0, 4, 7, 9}},
        {QStringLiteral("dim"), {0, 3, 6}},
    };
    QString kind = chord;
    const int root = takeStep(kind);
    if (root < 0) return {};
    QList<int> tones = kinds.value(kind);
    for (int& tone : tones) tone = (tone + root) % kOctave;
    return tones;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
