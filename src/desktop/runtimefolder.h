// A desktop session has a private folder, XDG_RUNTIME_DIR, in which the toolkit looks for a file when it
// starts. Without a session the toolkit creates that folder among the temporary files, complains and leaves
// it there. While this object exists, the process has a folder of its own instead. Nothing is created in a
// session.
#pragma once

#include <string>

namespace plotvue {

class RuntimeFolder {
public:
    RuntimeFolder(); // changes the environment, which is only safe while the process has one thread
    ~RuntimeFolder();
    RuntimeFolder(const RuntimeFolder&) = delete;

private:
    std::string folder_; // empty if the session has one
};

} // namespace plotvue
