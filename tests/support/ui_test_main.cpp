// Runs one of the tests that are linked in: "PROGRAM TEST [OPTIONS OF QT TEST]".
#include "support/ui_test.h"
#include "window/application.h"

#include <QTest>

#include <cstdio>
#include <filesystem>
#include <map>

namespace tarvel::test {

namespace {

std::map<std::string, UiTest>& tests() {
    static std::map<std::string, UiTest> known;
    return known;
}

} // namespace

UiTestEntry::UiTestEntry(const char* sourceFile, UiTest run) {
    tests().emplace(std::filesystem::path(sourceFile).stem().string(), std::move(run));
}

int UiTestEntry::runObject(QObject* test, const QStringList& arguments) {
    return QTest::qExec(test, arguments);
}

} // namespace tarvel::test

int main(int argc, char* argv[]) {
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi, true);
    tarvel::Application application(argc, argv);
    QStringList arguments = QApplication::arguments();
    const auto& tests = tarvel::test::tests();
    const auto found = tests.find(arguments.value(1).toStdString());
    if (found == tests.end()) {
        std::fputs("Name one of these tests:\n", stderr);
        for (const auto& [name, run] : tests) {
            std::fprintf(stderr, "  %s\n", name.c_str());
        }
        return 2;
    }
    arguments.removeAt(1);
    return found->second(arguments);
}
