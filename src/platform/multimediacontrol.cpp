#include "platform/multimediacontrol.h"

#include "core/texts.h"

namespace sarne {

QString MultimediaControl::errorMessage() const {
    return mediaErrorText(lastError());
}

QString mediaErrorText(MediaError error) {
    switch (error) {
        case MediaError::None:
            return {};
        case MediaError::UnknownCommand:
            return Texts::tr("Přehrávač tento příkaz nezná.");
        case MediaError::NoPlayer:
            return Texts::tr("Přehrávač zvuku a videa není v tomto počítači nainstalován.");
        case MediaError::FileNotFound:
            return Texts::tr("Soubor nebyl nalezen. Zkontrolujte, zda je v mechanice vložen disk.");
        case MediaError::NotOpen:
            return Texts::tr("Přehrávač nemá otevřen žádný soubor.");
        case MediaError::Internal:
            return Texts::tr("Přehrávač soubor neotevřel včas.");
        case MediaError::InvalidFile:
            return Texts::tr("Soubor nelze přehrát. Je poškozen nebo má neznámý formát.");
        case MediaError::FileNameMissing:
            return Texts::tr("Není zadán soubor, který se má přehrát.");
    }
    return {};
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
