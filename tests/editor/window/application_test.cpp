// What becomes of exceptions that leave the handling of an event.
#include "document/open_edit.h"
#include "support/editor.h"
#include "support/ui_test.h"
#include "window/application.h"

#include <functional>
#include <stdexcept>
#include <utility>

using namespace tarvel;
using namespace tarvel::test;

namespace {

// Fails in its own way while it handles an event.
class Failing : public QObject {
  public:
    explicit Failing(std::function<void()> fail)
        : fail_(std::move(fail)) {
        QApplication::postEvent(this, new QEvent(QEvent::User));
    }

  protected:
    bool event(QEvent* event) override {
        if (event->type() == QEvent::User) {
            fail_();
        }
        return QObject::event(event);
    }

  private:
    std::function<void()> fail_;
};

} // namespace

class ApplicationTest : public QObject {
    Q_OBJECT

  private slots:
    void init();
    void cleanup();
    void tellsOfAnExceptionAndLivesOn();
    void tellsOfWhatIsNoException();
    void whatWasBegunIsTakenOverByTheNextEdit();

  private:
    static Application& application() { return *qobject_cast<Application*>(qApp); }
    QStringList told_;
};

void ApplicationTest::init() {
    told_.clear();
    application().tellFailures([this](const QString& words) { told_ << words; });
}

void ApplicationTest::cleanup() {
    application().tellFailures({});
}

void ApplicationTest::tellsOfAnExceptionAndLivesOn() {
    Editor editor;
    editor.show();
    const Failing failing([] { throw std::runtime_error("no such row"); });
    QTRY_COMPARE(told_.size(), 1);
    QVERIFY(told_.front().contains("no such row"));
    editor.add(boxAt(10, 10, 50, 50)); // everything still works
    editor.click({30, 30});
    QCOMPARE(editor.window.curNum(), 1);
}

void ApplicationTest::tellsOfWhatIsNoException() {
    const Failing failing([] { throw 5; });
    QTRY_COMPARE(told_.size(), 1);
}

// Commands are edits by scope: one that fails half way leaves none open.
void ApplicationTest::whatWasBegunIsTakenOverByTheNextEdit() {
    Editor editor;
    editor.show();
    const Failing failing([&] {
        const OpenEdit edit(editor.document(), "fail");
        throw std::runtime_error("half way");
    });
    QTRY_COMPARE(told_.size(), 1);
    QVERIFY(!editor.document().isEditOpen());
}

TARVEL_UI_TEST(ApplicationTest)

#include "application_test.moc"
