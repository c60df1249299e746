#include "platform/file_error.h"

#include <cerrno>
#include <filesystem>

namespace arbolith {

ErrorNumber FileErrorOf(int systemError, const std::string& path) {
    switch (systemError) {
        case ENOENT: {
            std::error_code ignored;
            const auto folder = std::filesystem::path(path).parent_path();
            const bool folderThere = folder.empty() || std::filesystem::exists(folder, ignored);
            return folderThere ? ErrorNumber::kFileNotFound : ErrorNumber::kPathNotFound;
        }
        case ENOTDIR:
            return ErrorNumber::kPathNotFound;
        case EACCES:
        case EPERM:
        case EROFS:
        case ETXTBSY:
            return ErrorNumber::kPermissionDenied;
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            return ErrorNumber::kDiskFull;
        case ENODEV:
        case ENXIO:
            return ErrorNumber::kDeviceUnavailable;
        case EIO:
            return ErrorNumber::kDeviceError;
        default:
            return ErrorNumber::kPathFileAccess;
    }
}

}  // namespace arbolith
