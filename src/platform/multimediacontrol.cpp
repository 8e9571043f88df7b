#include "platform/multimediacontrol.h"

namespace sarne {

QString MultimediaControl::errorMessage() const {
    return mediaErrorText(lastError());
}

QString mediaErrorText(MediaError error) {
    switch (error) {
        case MediaError::None:
            return {};
        case MediaError::UnknownCommand:
            return QStringLiteral("Přehrávač tento příkaz nezná.");
        case MediaError::NoPlayer:
            return QStringLiteral("Přehrávač zvuku a videa není v tomto počítači nainstalován.");
        case MediaError::FileNotFound:
            return QStringLiteral("Soubor nebyl nalezen. Zkontrolujte, zda je v mechanice vložen disk.");
        case MediaError::NotOpen:
            return QStringLiteral("Přehrávač nemá otevřen žádný soubor.");
        case MediaError::Internal:
            return QStringLiteral("Přehrávač soubor neotevřel včas.");
        case MediaError::InvalidFile:
            return QStringLiteral("Soubor nelze přehrát. Je poškozen nebo má neznámý formát.");
        case MediaError::FileNameMissing:
            return QStringLiteral("Není zadán soubor, který se má přehrát.");
    }
    return {};
}

}  // namespace sarne
