// Permissions hold for root, too, while a test acts as somebody else.
#pragma once

#include "unit/platform/temporary_folder.h"

#include <filesystem>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/types.h>
#include <unistd.h>

namespace arbolith {

/// Where a test runs as root, lets it act as an ordinary user, to whom the folder and all in it
/// then belong, as long as this lives. Anybody else stays what they are.
class OrdinaryUser {
public:
    explicit OrdinaryUser(const TemporaryFolder& folder) {
        if (geteuid() != 0) return;
        GiveAway(folder.Path());
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.Path()))
            GiveAway(entry.path().string());
        if (setresgid(kNobody, kNobody, 0) != 0 || setresuid(kNobody, kNobody, 0) != 0)
            throw std::runtime_error("root can't act as an ordinary user");
        acts_ = true;
    }
    ~OrdinaryUser() {
        if (!acts_) return;
        if (setresuid(0, 0, 0) != 0 || setresgid(0, 0, 0) != 0) _exit(1);
        // Taken away with the rights, and what a sanitizer looks for leaks by.
        prctl(PR_SET_DUMPABLE, 1);
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

private:
    static constexpr uid_t kNobody = 65534;

    static void GiveAway(const std::string& path) {
        if (lchown(path.c_str(), kNobody, kNobody) != 0)
            throw std::runtime_error("root can't give a file away");
    }

    bool acts_ = false;
};

}  // namespace arbolith
