// Paths of the document as the user sees them, and files that come by drag and drop.
#pragma once

#include "files/host_files.h"
#include "widgets/qt_text.h"

#include <QFileInfo>
#include <QMimeData>
#include <QStringList>
#include <QUrl>

namespace tarvel {

/// The host's spelling of a document path.
[[nodiscard]] inline QString shownPath(std::string_view documentPath) {
    return qtPath(hostPath(documentPath));
}

/// The files of this computer among what is dragged; folders are left out.
[[nodiscard]] inline QStringList draggedFiles(const QMimeData& data) {
    QStringList files;
    const auto urls = data.urls();
    for (const QUrl& url : urls) {
        const QString file = url.toLocalFile();
        if (QFileInfo(file).isFile()) {
            files << file;
        }
    }
    return files;
}

} // namespace tarvel
