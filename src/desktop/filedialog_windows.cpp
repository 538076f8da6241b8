#include "desktop/filedialog.h"

#include <windows.h>

namespace plotvue {

namespace {

// While it exists, the user's part of the registry is an empty key in which nobody can create another: a key
// that is not volatile must not be in a volatile one. The toolkit cannot be told to use another place. It
// uses its settings only while it constructs and destroys a dialog; the rest of the time the system's dialog
// needs the registry.
class WithoutSettings {
public:
    WithoutSettings()
    {
        if (RegCreateKeyExW(HKEY_CURRENT_USER, L"Software\\PlotVue without settings", 0, nullptr,
                            REG_OPTION_VOLATILE, KEY_ALL_ACCESS, nullptr, &empty_, nullptr) == ERROR_SUCCESS)
            RegOverridePredefKey(HKEY_CURRENT_USER, empty_);
    }
    ~WithoutSettings()
    {
        RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
        if (!empty_)
            return;
        RegDeleteKeyW(empty_, L"");
        RegCloseKey(empty_);
    }
    WithoutSettings(const WithoutSettings&) = delete;

private:
    HKEY empty_ = nullptr;
};

} // namespace

void keepNoSettings()
{
    // The system's own dialogs ask for printers and files.
}

FileDialog makeFileDialog(QWidget& window)
{
    const WithoutSettings none;
    return FileDialog(
        new QFileDialog(&window)); // the system's own, which notes folders in the registry itself
}

void DeleteFileDialog::operator()(QFileDialog* dialog) const
{
    const WithoutSettings none;
    delete dialog;
}

} // namespace plotvue
