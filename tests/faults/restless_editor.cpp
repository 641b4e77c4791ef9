// The main window with somebody in it who works at random and never stops, to be killed. Writes
// down every state that the document goes through.
//
// Usage: restless_editor FOLDER LOG SEED. FOLDER takes the recovery file. Each line of LOG is the
// time in milliseconds, by the steady clock, the state's hash, and 1 when there is something to
// lose.
#include "faults/restless_editor.h"

#include "support/random_work.h"
#include "window/application.h"

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace {

class Log : private tarvel::DocumentObserver {
  public:
    Log(const tarvel::SkinDocument& document, const char* file)
        : document_(document)
        , file_(::open(file, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600)) // NOLINT: variadic
        , watch_(document.watch(*this)) {
        note();
    }
    ~Log() override { ::close(file_); }
    Log(const Log&) = delete;
    Log& operator=(const Log&) = delete;

  private:
    void documentChanged(const tarvel::DocumentChange& /*change*/) override { note(); }
    void note() const {
        const bool anything = !document_.holdsTheSame(tarvel::SkinDocument());
        const std::string line = std::to_string(tarvel::test::steadyMilliseconds()) + ' ' +
                                 std::to_string(tarvel::test::hashOf(document_)) +
                                 (anything ? " 1\n" : " 0\n");
        if (::write(file_, line.data(), line.size()) != static_cast<ssize_t>(line.size())) {
            std::abort();
        }
    }

    const tarvel::SkinDocument& document_;
    int file_;
    tarvel::DocumentWatch watch_;
};

} // namespace

int main(int argc, char* argv[]) {
    if (argc != 4) {
        std::fputs("Usage: restless_editor FOLDER LOG SEED\n", stderr);
        return 2;
    }
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi, true);
    tarvel::Application application(argc, argv);
    tarvel::test::BehaviourEditor editor(0);
    editor.window.keepWorkIn(argv[1]);
    const Log log(editor.document(), argv[2]);
    tarvel::test::RandomWork work(editor, static_cast<unsigned>(std::atoi(argv[3])));
    for (;;) {
        work.act();
        constexpr int longestRest = 40; // milliseconds
        QTest::qWait(work.below(longestRest));
    }
}
