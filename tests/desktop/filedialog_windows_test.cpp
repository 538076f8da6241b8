#include "desktop/desktopfixture.h"
#include "desktop/filedialog.h"

#include <windows.h>

namespace plotvue {

namespace {

using FileDialogs = test::DesktopTest;

bool exists(const wchar_t* key)
{
    HKEY opened = nullptr;
    const bool found = RegOpenKeyExW(HKEY_CURRENT_USER, key, 0, KEY_READ, &opened) == ERROR_SUCCESS;
    if (found)
        RegCloseKey(opened);
    return found;
}

} // namespace

TEST_F(FileDialogs, AFileDialogWritesNothingToTheRegistry)
{
    ASSERT_FALSE(exists(L"Software\\QtProject"));
    const Built built = shown();
    FileDialog dialog = makeFileDialog(built.widget());
    EXPECT_TRUE(exists(L"Software")) << "while a dialog is open, the registry is as usual";
    dialog.reset();
    EXPECT_TRUE(exists(L"Software"));
    EXPECT_FALSE(exists(L"Software\\QtProject"));
    EXPECT_FALSE(exists(L"Software\\PlotVue without settings"));
}

} // namespace plotvue
