// Recovery files on a disk that is full.
#include "files/host_files.h"
#include "skinfile/recovery_store.h"
#include "support/document_support.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>

namespace tarvel {

namespace fs = std::filesystem;

namespace {

WorkState workNamed(const std::string& name) {
    WorkState work{.document = test::fourBoxes(), .selected = {2}, .leading = 2, .folder = name};
    work.document.editSettings([&](SkinSettings& settings) { settings.skinName = name; });
    return work;
}

TEST(RecoveryStore, KeepsTheOlderFileWhenTheDiskIsFull) {
    const TemporaryFolder folder;
    RecoveryStore store(folder.path());
    store.keep(workNamed("older"));
    rlimit before{};
    ::getrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{100, before.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &small);
    EXPECT_THROW(store.keep(workNamed("newer")), FileError);
    ::setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_EQ(RecoveryStore::read(store.file()), workNamed("older"));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator()), 2);
}

} // namespace
} // namespace tarvel
