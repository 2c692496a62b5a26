#pragma once

#include <QSaveFile>
#include <span>
#include <string>

#include "export_result.h"

// Picture files appear complete or not at all: they are written beside their final name and
// renamed over it once everything is written.
namespace imageexport {

// Why a write to file failed: the system's reason for the call that failed (errno, cleared before
// the call), since Qt words a write that stopped part of the way "Unknown error"; else Qt's words.
std::string FailureReason(const QFileDevice& file, int systemError);

// The message for a picture file that could not be written.
std::string CannotWriteMessage(const std::string& path, const std::string& reason);

// Opens a save file for path; on failure the result says why.
ExportResult OpenSaveFile(QSaveFile& file);
// Commits an opened save file; on failure the old file (if any) is left as it was.
ExportResult CommitSaveFile(QSaveFile& file);

ExportResult WriteFileAtomically(const std::string& path, std::span<const unsigned char> bytes);

}  // namespace imageexport
