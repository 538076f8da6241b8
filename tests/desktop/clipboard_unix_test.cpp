#include "platform/desktop/clipboard.h"
#include "platform/desktop/shown.h"

#include <QClipboard>
#include <QGuiApplication>

#include <gtest/gtest.h>

namespace plotvue {

TEST(Clipboard, TextIsUnchangedApartFromLineEnds)
{
    const Text raw(u"a\nb\r\nc\rd\n\n\r\r\n\0e\xD800", 16);
    QGuiApplication::clipboard()->setText(toQString(raw));
    EXPECT_EQ(readClipboard(), Text(u"a\r\nb\r\nc\rd\r\n \r\n\r\r\n\0e\xD800\r\n", 22));
}

} // namespace plotvue
