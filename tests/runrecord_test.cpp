#include "support/OrdaTest.h"
#include "support/RecordEntry.h"

#include "client/record/RunRecord.h"

using namespace orda_client;

/// What a record's text is taken for.
class RunRecordTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void recordIsReadWhateverItsTextsHold_data()
    {
        columns<QString, QStringList>({"text", "expected"}); // outcome and fields
        const QString next = entry("B", "10.0.0.2", "success", "next");
        const QString nextFields = "2|B|10.0.0.2|success|next";
        const auto whole = [&](const char *what, const char *sn, const char *ip, const char *message,
                               const char *name) {
            const QString fields = QString::fromUtf8(QByteArrayList{"0", sn, ip, message, name}.join('|'));
            row(what, entry(sn, ip, message, name) + next, QStringList{fields, nextFields});
        };
        whole("address", "SN 1", "10.20.30.40", "Failed to get audio parameters(-1)", "Cam 1");
        whole("widest address", "A", "255.255.255.255", "no", "Cam");
        whole("no address", "A", "", "no", "Cam");
        whole("IPv6 address, wider than its column", "A", "2001:db8::1234:5678:9abc", "no", "Cam");
        whole("host name", "A", "gate.site", "no", "Cam");
        whole("nothing but a result", "", "", "no", "");
        whole("nothing at all", "", "", "", "");
        whole("no result", "A", "10.0.0.1", "", "Cam");
        whole("gap in the serial number", "A    1", "10.0.0.1", "no", "Cam");
        whole("gap in the serial number, no address", "A    1", "", "no", "Cam");
        whole("blanks after the serial number", "A   ", "10.0.0.1", "no", "Cam");
        whole("blanks after the serial number, no address", "A   ", "", "no", "Cam");
        whole("address as serial number", "10.9.9.9", "10.0.0.1", "no", "Cam");
        whole("entry in the name", "A", "", "no", "X    10.0.0.7            success                Y");
        whole("gaps around the name", "A", "10.0.0.1", "no", "    Cam                    2  ");
        whole("lines in name and result", "A", "10.0.0.1", "no\nanswer", "Cam\n\n2026\n\nHall\n");

        const QString noSuchDay = QString(next).replace("03-04", "13-44");
        const auto unreadable = [](const QString &text) { return QStringLiteral("1|||%1|").arg(text.trimmed()); };
        row("nothing", "", QStringList());
        row("foreign text", "hello\n\n" + next, QStringList{unreadable("hello"), nextFields});
        row("no such day", noSuchDay + next, QStringList{unreadable(noSuchDay), nextFields});
        row("cut off in the result", next + next.left(50), QStringList{nextFields, unreadable(next.left(50))});
        row("cut off in the time", next + next.left(5), QStringList{nextFields, unreadable(next.left(5))});
        const QString old = QString(next).replace("2026", "2001");
        row("time goes back", next + old + next + next,
            QStringList{unreadable(next), unreadable(old), nextFields, nextFields});
        row("cut off, and another behind it", next.chopped(4) + next, QStringList{unreadable(next.chopped(4) + next)});
    }

    void recordIsReadWhateverItsTextsHold()
    {
        QFETCH(QString, text);
        QFETCH(QStringList, expected);
        QStringList read;
        const QVector<RunEntry> entries = parseRunRecord(text, {"success"});
        for (const RunEntry &entry : entries) {
            const QStringList fields{entry.serialNumber, entry.ip, entry.message, entry.name};
            read.append(QStringLiteral("%1|%2").arg(QString::number(entry.outcome), fields.join('|')));
        }
        QCOMPARE(read, expected);
    }

    void fieldsDoNotTurnAFailureIntoASuccess_data() { seeds(60); }

    void fieldsDoNotTurnAFailureIntoASuccess()
    {
        QFETCH(int, seed);
        QRandomGenerator random{quint32(seed)};
        const QString success = "10.0.0.1            success";
        QStringList parts = QString("A|10.0.0.1|gate| |    |            |                |success|\n\n").split('|');
        parts << success << "A    " + success + "                B";
        for (const char *time : {"2001-02-03 04:05:06", "2001-13-44 04:05:06", "2099-02-03 04:05:06"})
            parts.append(QStringLiteral("\n\n%1    ").arg(time));
        const auto field = [&] {
            QString text;
            for (int count = random.bounded(6); count > 0; --count)
                text += parts.at(random.bounded(parts.size()));
            return text.toUtf8();
        };
        const QStringList successTexts{"success"};
        for (int i = 0; i < 300; ++i) {
            QByteArray message = random.bounded(2) ? QByteArray("no") : field();
            if (message.trimmed() == "success")
                message = "no";
            const QString own = entry(field(), field(), message, field());
            const QString text = own + entry("B", "10.0.0.2", "success", "next");
            const auto read = parseRunRecord(text.toUtf8(), {own.size(), text.size()}, successTexts);
            QCOMPARE(read.size(), 2);
            QVERIFY2(read.at(0).outcome != RunEntry::Succeeded && read.at(1).outcome == RunEntry::Succeeded,
                     qPrintable(own));
            const auto guessed = parseRunRecord(text, successTexts, "2026-03-05 00:00:00");
            for (const RunEntry &entry : guessed)
                QVERIFY2(entry.outcome != RunEntry::Succeeded || entry.serialNumber == "B", qPrintable(own));
        }
    }

    void successIsKnownInEveryLanguage()
    {
        const QStringList texts = successTexts();
        for (const char *text : {"success", "erfolgreich", "成功"})
            QVERIFY2(texts.contains(QString::fromUtf8(text)), text);
    }
};

ORDA_TEST_MAIN(RunRecordTest)
#include "runrecord_test.moc"
