// What is told of edits: one step for whatever happens in it.
#include "document/open_edit.h"
#include "support/document_support.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarvel {
namespace {

using Texts = std::vector<std::string>;

class EditNotes : public DocumentObserver {
  public:
    explicit EditNotes(SkinDocument& document)
        : watch_(document.watch(*this)) {}
    void documentChanged(const DocumentChange& /*change*/) override {
        notes.emplace_back("change");
    }
    void editBegan(const std::string& name) override { notes.push_back("begin " + name); }
    void editEnded(bool takenBack) override {
        notes.emplace_back(takenBack ? "taken back" : "end");
    }
    Texts notes;

  private:
    DocumentWatch watch_;
};

void change(SkinDocument& document) {
    document.setScreenElementCount(0, 1);
}

TEST(OpenEdit, NamesWhatIsChangedInIt) {
    SkinDocument document;
    const EditNotes seen(document);
    {
        const OpenEdit edit(document, "move Box");
        EXPECT_TRUE(document.isEditOpen());
        change(document);
        change(document);
    }
    EXPECT_FALSE(document.isEditOpen());
    EXPECT_EQ(seen.notes, (Texts{"begin move Box", "change", "change", "end"}));
}

TEST(OpenEdit, TakesWhatIsBegunInItAsAPart) {
    SkinDocument document;
    const EditNotes seen(document);
    {
        const OpenEdit outer(document, "dialog");
        {
            OpenEdit inner(document, "entry");
            change(document);
            inner.takeBack();
        }
        document.continueRun("keys");
        document.endRun();
        change(document);
    }
    EXPECT_EQ(seen.notes, (Texts{"begin dialog", "change", "change", "end"}));
}

TEST(OpenEdit, SaysThatItWasTakenBack) {
    SkinDocument document;
    const EditNotes seen(document);
    {
        OpenEdit edit(document, "draw Box");
        edit.takeBack();
    }
    EXPECT_EQ(seen.notes, (Texts{"begin draw Box", "taken back"}));
}

TEST(OpenEdit, RunsGoOnUntilAnotherEdit) {
    SkinDocument document;
    const EditNotes seen(document);
    document.continueRun("nudge");
    change(document);
    document.continueRun("nudge");
    change(document);
    { const OpenEdit edit(document, "delete Box"); }
    document.continueRun("nudge");
    document.continueRun("other");
    document.endRun();
    document.endRun();
    EXPECT_FALSE(document.isEditOpen());
    EXPECT_EQ(seen.notes, (Texts{"begin nudge", "change", "change", "end", "begin delete Box",
                                 "end", "begin nudge", "end", "begin other", "end"}));
}

TEST(OpenEdit, BelongsToTheObjectAndNotToTheValue) {
    SkinDocument document;
    const OpenEdit edit(document, "move Box");
    const SkinDocument copy(document);
    EXPECT_FALSE(copy.isEditOpen());
    document = SkinDocument();
    EXPECT_TRUE(document.isEditOpen());
    EXPECT_EQ(document, copy);
}

} // namespace
} // namespace tarvel
