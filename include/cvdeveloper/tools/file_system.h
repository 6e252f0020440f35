#pragma once

#include <string_view>

#include "cvdeveloper/tools/folder.h"
#include "cvdeveloper/tools/text_stream.h"

namespace cvdeveloper {

// Files and folders, as the scripting runtime's file-system object treats them. Needs no session.
class clsFileSystem final : public LibraryObject {
  public:
    static constexpr std::string_view automation_name = "clsFileSystem";

    Ref<TextStream> CreateTextFile(std::string_view strFile, bool bolOverwrite = false);
    Ref<Folder> CreateFolder(std::string_view strPath);
    void CopyFile(std::string_view strSource, std::string_view strDest, bool bolOverwrite = false);
    void CopyFolder(std::string_view strSource, std::string_view strDest,
                    bool bolOverwrite = false);
    void MoveFile(std::string_view strSource, std::string_view strDest);
    void MoveFolder(std::string_view strSource, std::string_view strDest);
    void DeleteFile(std::string_view strFile);
    void DeleteFolder(std::string_view strFolder);
    bool FileExists(std::string_view strFile);
    bool FolderExists(std::string_view strFolder);
    void AppendFile(std::string_view strFileName, std::string_view strMsg);

    [[nodiscard]] const InterfaceTable& table() const noexcept override;
};

}  // namespace cvdeveloper
