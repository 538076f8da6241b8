// File dialogs that store nothing. The toolkit's own dialogs store their folder, their history and their
// columns: in a settings file on Unix, in the registry on Windows.
#pragma once

#include <QFileDialog>

#include <memory>

namespace plotvue {

// Call this at start. From then on, the file dialogs that the toolkit itself opens store nothing either. On
// Unix there is one in its printer dialog, for "Print to file"; on Windows there is none.
void keepNoSettings();

struct DeleteFileDialog {
    void operator()(QFileDialog* dialog) const;
};
using FileDialog = std::unique_ptr<QFileDialog, DeleteFileDialog>;

FileDialog makeFileDialog(QWidget& window);

} // namespace plotvue
