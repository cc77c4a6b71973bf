// A catalogue of texts: what is found sound is read by Qt, which follows every offset in it.
#include "fuzz/Fuzz.h"

#include "language/Catalogue.h"

#include <QtCore/QTranslator>

void tryBytes(QByteArrayView bytes)
{
    const QByteArray file = bytes.toByteArray();
    if (!language::findDamage(file).isEmpty())
        return;
    QTranslator texts;
    if (!texts.load(reinterpret_cast<const uchar *>(file.constData()), static_cast<int>(file.size())))
        return;
    for (const char *context : {"", "QObject", "PHONE_UI_RecentCallTimesView", "host::Panel"})
        for (const char *key : {"", "TXT_RID_SETTING_A_LAST_CALL", "a"})
            for (const char *comment : {"", "Last Call"})
                texts.translate(context, key, comment);
}
