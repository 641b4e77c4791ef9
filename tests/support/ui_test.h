// Registers a Qt Test class under the name of its source, to be run by the program's one main().
#pragma once

#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>
#include <string>

namespace tarvel::test {

/// What a program of tests can run: its arguments in, its exit code out.
using UiTest = std::function<int(const QStringList& arguments)>;

/// Makes a test known to main() by the name of its source file, without the ending.
class UiTestEntry {
  public:
    UiTestEntry(const char* sourceFile, UiTest run);
    /// A test class: every run is one of a new object.
    template <class Test> static UiTestEntry of(const char* sourceFile) {
        return {sourceFile, [](const QStringList& arguments) {
                    return runObject(std::make_unique<Test>().get(), arguments);
                }};
    }

  private:
    static int runObject(QObject* test, const QStringList& arguments);
};

} // namespace tarvel::test

/// At the end of a source with a test class in it.
#define TARVEL_UI_TEST(Class)                                                                      \
    static const auto registered = tarvel::test::UiTestEntry::of<Class>(__FILE__);
