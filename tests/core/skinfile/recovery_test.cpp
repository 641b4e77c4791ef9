// The state of the work through a recovery file: everything comes back, and nothing that is not
// whole does.
#include "skinfile/recovery.h"
#include "support/document_support.h"
#include "support/full_document.h"

#include <gtest/gtest.h>

#include <bit>
#include <functional>
#include <limits>

namespace tarvel {
namespace {

using test::fullDocument;
using test::fullElement;

WorkState fullWork() {
    return {fullDocument(), {3, 1}, 3, "/home/some\xFF one/skin", 1'700'000'000'123};
}

std::string problemOf(std::string_view bytes) {
    try {
        static_cast<void>(readRecovery(bytes));
        return "none";
    } catch (const SealedBytesError& error) {
        return error.what();
    }
}

SkinDocument largeDocument(int count) {
    SkinDocument document;
    for (int i = 0; i < count; ++i) {
        document.setCurrentLayout(i % screenCount);
        document.addElement(i % 10 == 0 ? fullElement(i) : Element{});
    }
    return document;
}

TEST(Recovery, BringsEveryStateBack) {
    const std::pair<const char*, WorkState> cases[] = {
        {"nothing", {}},
        {"everything", fullWork()},
        {"a document alone", {.document = fullDocument(), .selected = {}, .folder = {}}},
        {"many elements", {.document = largeDocument(5000), .selected = {}, .folder = {}}},
    };
    for (const auto& [name, work] : cases) {
        const WorkState back = readRecovery(recoveryBytes(work));
        EXPECT_EQ(back.document, work.document) << name;
        EXPECT_EQ(back, work) << name;
        EXPECT_EQ(back.document.lastElementId(), work.document.lastElementId()) << name;
        EXPECT_EQ(recoveryBytes(back), recoveryBytes(work)) << name;
    }
}

// Each field in turn set in an element that is otherwise a new one.
TEST(Recovery, BringsEachFieldBackAlone) {
    const std::function<void(Element&)> changes[] = {
        [](Element& e) { e.elementKind = ElementKind::Menu; },
        [](Element& e) { e.elementLocked = true; },
        [](Element& e) { e.textIsConstant = true; },
        [](Element& e) { e.elementLayout = 5; },
        [](Element& e) { e.elementAlpha = 1; },
        [](Element& e) { e.elementTimers[3] = 1; },
        [](Element& e) { e.elementControl.kind = ControlKind::vid; },
        [](Element& e) { e.elementControl.picture = PictureContent::barred; },
        [](Element& e) { e.elementControl.Y2 = 1; },
        [](Element& e) { e.elementControl.textColor = 1; },
        [](Element& e) { e.elementControl.font.edit().bold = true; },
        [](Element& e) { e.elementControl.font.edit().family.clear(); },
        [](Element& e) { e.elementModifiers.edit().addChild(XmlTree::top, "a"); },
        [](Element& e) { e.menuSettings.edit().unselectedDescriptionColor = "1"; },
        [](Element& e) { e.menuSettings.edit().itemsShown = 1; },
    };
    for (const auto& change : changes) {
        WorkState work;
        test::addBox(work.document, "A");
        work.document.editElement(1, change);
        EXPECT_EQ(readRecovery(recoveryBytes(work)), work);
    }
}

TEST(Recovery, KeepsEveryBitOfNumbers) {
    const float odd[] = {-0.0F,
                         std::numeric_limits<float>::quiet_NaN(),
                         std::bit_cast<float>(0xFFC12345U),
                         std::bit_cast<float>(0x7F800001U),
                         -std::numeric_limits<float>::infinity(),
                         std::numeric_limits<float>::denorm_min()};
    for (const float number : odd) {
        WorkState work;
        test::addBox(work.document, "A");
        work.document.editElement(1, [&](Element& element) {
            element.elementControl.left = number;
            element.elementControl.font.edit().size = number;
        });
        work.document.editSettings(
            [&](SkinSettings& settings) { settings.delays[1] = -double{number}; });
        const WorkState back = readRecovery(recoveryBytes(work));
        const ElementControl& control = back.document.element(1).elementControl;
        EXPECT_EQ(std::bit_cast<std::uint32_t>(control.left), std::bit_cast<std::uint32_t>(number));
        EXPECT_EQ(std::bit_cast<std::uint32_t>(control.font->size),
                  std::bit_cast<std::uint32_t>(number));
        EXPECT_EQ(std::bit_cast<std::uint64_t>(back.document.settings().delays[1]),
                  std::bit_cast<std::uint64_t>(work.document.settings().delays[1]));
    }
}

TEST(Recovery, LeavesTheNextIdAsItWas) {
    WorkState work{.document = test::fourBoxes(), .selected = {}, .folder = {}};
    work.document.delItem(3);
    SkinDocument back = readRecovery(recoveryBytes(work)).document;
    EXPECT_EQ(test::addBox(back, "E"), 5);
}

TEST(Recovery, RefusesAFileWithAnyByteFlipped) {
    const std::string whole = recoveryBytes(fullWork());
    std::string bytes = whole;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        for (const int bits : {0x01, 0x80, 0xFF}) {
            bytes[i] = static_cast<char>(bytes[i] ^ bits);
            EXPECT_NE(problemOf(bytes), "none") << "byte " << i << " by " << bits;
            bytes[i] = whole[i];
        }
    }
    EXPECT_EQ(problemOf(bytes), "none");
}

TEST(Recovery, RefusesAFileCutOffAnywhereOrGoingOn) {
    const std::string whole = recoveryBytes(fullWork());
    for (std::size_t size = 0; size < whole.size(); ++size) {
        EXPECT_EQ(problemOf(std::string_view(whole).substr(0, size)), "The file is cut short")
            << size;
    }
    EXPECT_EQ(problemOf(whole + '\0'), "The file is damaged");
}

TEST(Recovery, TellsWhatIsWrong) {
    const std::string work = recoveryBytes({});
    const std::string content(unsealed(recoverySeal, work));
    const Seal next{.magic = recoverySeal.magic, .version = recoverySeal.version + 1};
    EXPECT_EQ(problemOf("<?xml version=\"1.0\"?>"), "The file is of another kind");
    EXPECT_EQ(problemOf(std::string(100, '\0')), "The file is of another kind");
    EXPECT_EQ(problemOf(sealed(next, content)), "The file is of another version of Tarvel");
    EXPECT_EQ(problemOf(sealed(recoverySeal, content + 'x')), "The file is damaged");
}

// What stands under a right seal and is nonsense all the same: by each byte and each cut of the
// content, the reader says so or reads something that it can write again. Counts are the danger.
TEST(Recovery, TrustsNoNumberUnderARightSeal) {
    WorkState work{.document = {}, .selected = {1}, .leading = 1, .folder = "f"};
    work.document.addElement(fullElement(1));
    work.document.addElement({});
    work.document.editSettings([](SkinSettings& settings) { settings = test::fullSettings(); });
    const std::string bytes = recoveryBytes(work);
    const std::string content(unsealed(recoverySeal, bytes));
    std::size_t refused = 0;
    const auto attempt = [&](const std::string& forged) {
        try {
            const WorkState read = readRecovery(sealed(recoverySeal, forged));
            EXPECT_EQ(recoveryBytes(read).size(), forged.size() + bytes.size() - content.size());
        } catch (const SealedBytesError&) {
            ++refused;
        }
    };
    for (std::size_t i = 0; i < content.size(); ++i) {
        std::string forged = content;
        for (const char byte : {'\x00', '\x02', '\x7F', '\xFF'}) {
            forged[i] = byte;
            attempt(forged);
        }
        attempt(content.substr(0, i));
    }
    EXPECT_GT(refused, content.size());
}

TEST(Recovery, RefusesRowsThatNoDocumentHas) {
    const auto forged = [](const std::function<void(DocumentParts&)>& change) {
        DocumentParts parts;
        parts.elements.push_back({});
        parts.elements.push_back({});
        parts.rows[1] = {1, 2};
        change(parts);
        return problemOf(recoveryBytes(
            {.document = SkinDocument(std::move(parts)), .selected = {}, .folder = {}}));
    };
    const std::pair<const char*, std::function<void(DocumentParts&)>> cases[] = {
        {"twice in a list",
         [](DocumentParts& p) {
             p.rows[1] = {1, 1};
         }},
        {"twice on two screens", [](DocumentParts& p) { p.rows[2] = {1}; }},
        {"no such id", [](DocumentParts& p) { p.rows[2] = {3}; }},
        {"slot without an element", [](DocumentParts& p) { p.rows[2] = {0}; }},
        {"below every id", [](DocumentParts& p) { p.rows[2] = {-1}; }},
        {"more locked than there", [](DocumentParts& p) { p.lockCount[1] = 3; }},
        {"fewer locked than none", [](DocumentParts& p) { p.lockCount[1] = -1; }},
        {"no such screen", [](DocumentParts& p) { p.currentLayout = 6; }},
        {"no such music", [](DocumentParts& p) { p.settings.music.rows = {0}; }},
        {"an element of no screen",
         [](DocumentParts& p) { p.elements.edit(1).elementLayout = -1; }},
    };
    EXPECT_EQ(forged([](DocumentParts&) {}), "none");
    for (const auto& [name, change] : cases) {
        EXPECT_EQ(forged(change), "The file is damaged") << name;
    }
    EXPECT_EQ(problemOf(recoveryBytes({.document = {}, .selected = {1}, .folder = {}})),
              "The file is damaged");
    EXPECT_EQ(
        problemOf(recoveryBytes({.document = {}, .selected = {}, .leading = 1, .folder = {}})),
        "The file is damaged");
}

TEST(Recovery, CarriesTreesOfAnyDepth) {
    WorkState work;
    Element element;
    XmlTree& tree = element.elementModifiers.edit();
    XmlTree::Index node = XmlTree::top;
    for (int depth = 0; depth < 200'000; ++depth) {
        node = tree.addChild(node, "m");
    }
    work.document.addElement(std::move(element));
    EXPECT_TRUE(readRecovery(recoveryBytes(work)) == work);
}

} // namespace
} // namespace tarvel
