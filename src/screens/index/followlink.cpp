#include "screens/index/followlink.h"

#include "forms/bassarne.h"
#include "forms/screens.h"

namespace sarne {

void followLink(basSarne& app, const LinkKey& key) {
    const auto number = static_cast<std::int16_t>(key.number);
    switch (key.kind) {
        case LinkKind::Keyword:
            return app.screens().showIndex(number);
        case LinkKind::Video:
            return app.screens().showVideo(number);
        case LinkKind::Beep:
            return app.Beep();
    }
}

}  // namespace sarne
