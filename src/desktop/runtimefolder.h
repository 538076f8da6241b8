// A desktop session has a private folder, XDG_RUNTIME_DIR, in which the toolkit looks for a file when it
// starts. Without a session, the toolkit would print a warning and leave such a folder among the temporary
// files. Therefore the process then has a folder of its own while this object exists. In a session, the
// object does nothing.
#pragma once

#include <string>

namespace plotvue {

class RuntimeFolder {
public:
    RuntimeFolder(); // changes the environment, so the process must have only one thread
    ~RuntimeFolder();
    RuntimeFolder(const RuntimeFolder&) = delete;

private:
    std::string folder_; // empty in a session, which has a folder
};

} // namespace plotvue
