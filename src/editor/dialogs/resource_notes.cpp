// Counts uses and missing files, and puts them into words.
#include "dialogs/resource_notes.h"

#include "editing/resource_uses.h"
#include "files/host_paths.h"
#include "widgets/shown_path.h"

#include <QObject>

#include <algorithm>

namespace tarvel {

namespace {

bool canBeMissing(const Resource& resource) {
    return resource.isFile && !resource.outside;
}

} // namespace

const Resource* ResourceNotes::resource(int row) const {
    const auto& resources = document_.settings().resources;
    const auto index = static_cast<std::size_t>(row); // -1 is too large
    return index < resources.size() ? &resources[index] : nullptr;
}

void ResourceNotes::countUses() {
    uses_ = resourceUses(document_);
}

std::vector<MissingFile> ResourceNotes::lookForFiles() {
    std::vector<MissingFile> missing = missingFiles(document_);
    isMissing_.assign(document_.settings().resources.size(), false);
    missing_ = 0;
    otherMissing_ = 0;
    for (const MissingFile& file : missing) {
        if (file.what == MissingFile::What::resource) {
            isMissing_[static_cast<std::size_t>(file.index)] = true;
            ++missing_;
        } else {
            ++otherMissing_;
        }
    }
    return missing;
}

void ResourceNotes::lookForFilesFrom(int first) {
    const auto& resources = document_.settings().resources;
    FileFinder files;
    isMissing_.resize(resources.size(), false);
    for (auto row = static_cast<std::size_t>(first); row < resources.size(); ++row) {
        isMissing_[row] = canBeMissing(resources[row]) && !files.FileExists(resources[row].content);
    }
    missing_ = static_cast<int>(std::count(isMissing_.begin(), isMissing_.end(), true));
}

void ResourceNotes::lookForFile(int row) {
    const Resource* looked = resource(row);
    const auto index = static_cast<std::size_t>(row);
    if (looked == nullptr || index >= isMissing_.size()) {
        return;
    }
    missing_ -= isMissing_[index] ? 1 : 0;
    isMissing_[index] = canBeMissing(*looked) && !FileExists(looked->content);
    missing_ += isMissing_[index] ? 1 : 0;
}

void ResourceNotes::removeRow(int row) {
    if (static_cast<std::size_t>(row) < isMissing_.size()) {
        missing_ -= isMissing_[static_cast<std::size_t>(row)] ? 1 : 0;
        isMissing_.erase(isMissing_.begin() + row);
    }
}

int ResourceNotes::uses(int row) const {
    const auto index = static_cast<std::size_t>(row);
    return index < uses_.size() ? uses_[index] : 0;
}

bool ResourceNotes::isMissing(int row) const {
    const auto index = static_cast<std::size_t>(row);
    return index < isMissing_.size() && isMissing_[index];
}

bool ResourceNotes::isAnyMissing() const {
    return missing_ + otherMissing_ > 0;
}

QString ResourceNotes::usesText(int row) const {
    switch (const int count = uses(row)) {
    case 0:
        return QObject::tr("unused");
    case 1:
        return QObject::tr("1 use");
    default:
        return QObject::tr("%1 uses").arg(count);
    }
}

QString ResourceNotes::contentText(int row) const {
    const Resource* shown = resource(row);
    if (shown == nullptr) {
        return {};
    }
    return shown->isFile ? shownPath(shown->content) : qtText(shown->content);
}

QString ResourceNotes::spokenText(int row) const {
    const Resource* spoken = resource(row);
    const QString name = spoken == nullptr ? QString() : qtText(spoken->name);
    return isMissing(row) ? QObject::tr("%1, file missing, %2").arg(name, usesText(row))
                          : QObject::tr("%1, %2").arg(name, usesText(row));
}

} // namespace tarvel
