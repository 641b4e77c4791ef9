// What is read out in the dialogs: what can be seen, and each thing once.
#include "dialogs/frm_colors.h"
#include "dialogs/frm_delays.h"
#include "dialogs/frm_info.h"
#include "dialogs/frm_instructions.h"
#include "dialogs/frm_music.h"
#include "dialogs/frm_pic.h"
#include "dialogs/frm_resources.h"
#include "support/access_support.h"
#include "support/scripted_prompts.h"
#include "support/ui_test.h"
#include "surface/picture_cache.h"
#include "widgets/copy_progress.h"
#include "widgets/search_progress.h"

#include <QTest>

#include <functional>
#include <memory>

namespace tarvel {

namespace {

using MakeWidget = std::function<std::unique_ptr<QWidget>()>;

struct Case {
    const char* name;
    QStringList captions; // of its buttons
    MakeWidget make;
};

} // namespace

class DialogNamesTest : public QObject {
    Q_OBJECT

  private slots:
    void readsOutWhatCanBeSeen_data();
    void readsOutWhatCanBeSeen();

  private:
    std::vector<Case> cases();

    SkinDocument document_;
    test::ScriptedPrompts prompts_;
    PictureCache pictures_;
};

std::vector<Case> DialogNamesTest::cases() {
    return {
        {"colors",
         {"Box", "OK"},
         [this] { return std::make_unique<FrmColors>(document_, prompts_); }},
        {"delays", {"OK"}, [this] { return std::make_unique<FrmDelays>(document_, prompts_); }},
        {"info",
         {"Add Field", "OK"},
         [this] { return std::make_unique<FrmInfo>(document_, prompts_); }},
        {"instructions",
         {"OK"},
         [] { return std::make_unique<FrmInstructions>("/skins/Aurora/"); }},
        {"music",
         {"Use Background Music", "No Music", "Use Global Music (from your xbox soundtracks)",
          "Use Custom Music", "Add Files", "Play", "Play Music in Random Order", "OK"},
         [this] { return std::make_unique<FrmMusic>(document_, prompts_); }},
        {"picture", {}, [] { return std::make_unique<FrmPic>(); }},
        {"progress", {"Cancel"}, [] { return std::make_unique<CopyProgress>(nullptr); }},
        {"search", {"Cancel"}, [] { return std::make_unique<SearchProgress>(nullptr); }},
        {"resources",
         {"Custom (from file)", "Preset (in QOR)", "Browse", "Add", "Add Resource", "Rename",
          "Replace...", "Remove", "Locate...", "OK"},
         [this] { return std::make_unique<FrmResources>(document_, prompts_, pictures_); }},
    };
}

void DialogNamesTest::readsOutWhatCanBeSeen_data() {
    QTest::addColumn<std::size_t>("index");
    const auto all = cases();
    for (std::size_t i = 0; i < all.size(); ++i) {
        QTest::newRow(all[i].name) << i;
    }
}

void DialogNamesTest::readsOutWhatCanBeSeen() {
    QFETCH(std::size_t, index);
    const Case wanted = cases().at(index);
    const auto dialog = wanted.make();
    QStringList captions;
    for (const QAbstractButton* button : test::captionedButtons(*dialog)) {
        captions << test::captionOf(*button);
    }
    for (const QString& caption : wanted.captions) {
        QVERIFY2(captions.contains(caption), qPrintable(caption));
    }
    QCOMPARE(test::buttonsReadOutOtherwise(*dialog).join(QLatin1Char('\n')), QString());
    QCOMPARE(test::unheardLabels(*dialog).join(QLatin1Char('\n')), QString());
    QCOMPARE(test::saidTwice(*dialog).join(QLatin1Char('\n')), QString());
}

} // namespace tarvel

TARVEL_UI_TEST(tarvel::DialogNamesTest)
#include "dialog_names_test.moc"
