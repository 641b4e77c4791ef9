// What the tests of the resources dialog share: the dialog and pictures to fill it with.
#pragma once

#include "dialogs/frm_resources.h"
#include "support/dialog_support.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"
#include "surface/picture_cache.h"

#include <QImage>

#include <memory>

namespace tarvel::test {

/// Base of test classes.
class ResourcesFixture {
  protected:
    void startAfresh() {
        document_ = SkinDocument();
        prompts_ = std::make_unique<ScriptedPrompts>();
        pictures_ = std::make_unique<PictureCache>();
        dialog_ = std::make_unique<FrmResources>(document_, *prompts_, *pictures_);
    }
    void open() { QVERIFY(test::open(*dialog_)); }
    /// A control of the dialog.
    template <class Control> Control& at(const char* name) const {
        return control<Control>(*dialog_, QLatin1String(name));
    }
    [[nodiscard]] const std::vector<Resource>& resources() const {
        return document_.settings().resources;
    }
    /// The host path of a file in the folder.
    [[nodiscard]] QString inFolder(const char* name) const {
        return QString::fromStdString((folder_ / name).string());
    }
    /// Writes a picture of one colour and returns its host path.
    QString picture(const char* name, const QColor& color, QSize size = {60, 40}) const {
        QImage image(size, QImage::Format_ARGB32);
        image.fill(color);
        const QString path = inFolder(name);
        if (!image.save(path)) {
            qFatal("cannot write %s", qPrintable(path));
        }
        return path;
    }

    SkinDocument document_;
    std::unique_ptr<ScriptedPrompts> prompts_;
    std::unique_ptr<PictureCache> pictures_;
    std::unique_ptr<FrmResources> dialog_;
    TemporaryFolder folder_;
};

} // namespace tarvel::test
