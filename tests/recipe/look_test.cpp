#include "recipe/recipefixture.h"
namespace sarne { namespace {
TEST_F(RecipeTest, Look) {
    for (QSize size : {QSize(800,600), QSize(1920,1080)}) {
        run.window.resize(size);
        QApplication::processEvents();
        for (int s = 0; s < 8; ++s) {
            click(qPrintable(QStringLiteral("imgBtn(%1)").arg(s)));
            run.window.grab().save(QStringLiteral("/tmp/look_%1_%2.png").arg(size.width()).arg(s));
        }
    }
}
}}
