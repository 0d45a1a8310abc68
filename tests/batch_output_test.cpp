#include "support/OrdaTest.h"

#include "batch/OutputThread.h"
#include "batch/ResultWriter.h"

#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

using namespace orda_batch;
using orda_journal::Outcome;

namespace {

/// What the test reads from one end, the program writes to the other, which stays open: a thread may be left in it.
struct Pipe
{
    Pipe() { isOpen = ::pipe2(ends, O_CLOEXEC) == 0; }
    bool isFull() const { return ::ioctl(ends[0], FIONREAD, &waiting) == 0 && waiting > 60'000; }
    QByteArray read() const
    {
        QByteArray bytes(1'000'000, '\0');
        bytes.resize(int(::read(ends[0], bytes.data(), size_t(bytes.size()))));
        return bytes;
    }
    int ends[2] = {};
    bool isOpen;
    mutable int waiting = 0;
};

DeviceResult resultFrom(const QString &text)
{
    const QJsonObject json = QJsonDocument::fromJson(text.toUtf8()).object();
    bool isKnown = false;
    const Outcome outcome = orda_journal::outcomeFromName(json["outcome"].toString("done"), &isKnown);
    DeviceResult result{"d1", "S1",     json["name"].toString("Gate"), "10.0.0.1", outcome, json["code"].toInt(),
                        {},   "offline"};
    result.message = json["message"].toString("success");
    result.values = json["values"].toObject();
    const QVariantMap changes = json["changes"].toObject().toVariantMap();
    for (auto it = changes.begin(); it != changes.end(); ++it)
        result.changes.append({it.key(),
                               it->toList().size() > 1 ? it->toList().first().toJsonValue() : QJsonValue::Undefined,
                               it->toList().last().toJsonValue()});
    return result;
}

} // namespace

/// What orda_batch writes, over pipes in place of its standard descriptors.
class BatchOutputTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void writesResults_data()
    {
        columns<QString, QString, QString, QString>({"format", "columns", "result", "written"});
        rowsFrom("batch_results.txt");
    }

    void writesResults()
    {
        QFETCH(QString, format);
        QFETCH(QString, columns);
        QFETCH(QString, result);
        const bool isCsv = format == "csv", isSummary = format == "summary";
        const Pipe results, errors;
        OutputThread output(nullptr, results.ends[1], errors.ends[1]);
        const QMap<QString, Format> formats{{"csv", Format::Csv}, {"json", Format::Json}};
        ResultWriter writer(&output, formats.value(format, Format::Table), format == "colors");
        Summary summary{"apply", "osd", "1a2b3c4d-5e6f", {}, 8, 1};
        summary.outcomes = {{Outcome::Done, 1}, {Outcome::Failed, 7}};
        summary.stopped = "too many";
        vms_sdk::DevInfo wide;
        wide.name = "北门摄像机";
        writer.begin({wide}, "1a2b3c4d-5e6f", columns.split(',', Qt::SkipEmptyParts));
        for (int i = 0; i < (isSummary ? 7 : 1); ++i)
            writer.add(resultFrom(result));
        if (isSummary || !columns.isEmpty())
            writer.end(summary);
        QTRY_VERIFY(!output.isBehind());
        const QByteArray bytes = (isSummary ? errors : results).read();
        QVERIFY(bytes.startsWith("\xef\xbb\xbf") == isCsv && bytes.endsWith(isCsv ? "\r\n" : "\n"));
        QString written = QString::fromUtf8(bytes).trimmed().replace("\r\n", " // ").replace('\x1b', "^[");
        QTEST(written.replace('\n', isCsv ? "^J" : " // "), "written");
    }

    void readerThatStopsHoldsUpNothing()
    {
        const Pipe pipe, unread;
        ::fcntl(pipe.ends[1], F_SETFL, O_NONBLOCK); // as another program that shares it may have made it
        OutputThread output(nullptr, pipe.ends[1]);
        const QSignalSpy drained(&output, &OutputThread::signalDrained);
        const QByteArray given = QByteArray("0123456789").repeated(50'000);
        QByteArray taken;
        output.write(given);
        output.drain();
        QTRY_VERIFY(pipe.isFull());
        QCoreApplication::processEvents();
        QVERIFY(output.isBehind() && drained.isEmpty());
        while (taken.size() < given.size())
            taken += pipe.read();
        QVERIFY(taken == given);
        QTRY_COMPARE(drained.size(), 1);

        auto other = std::make_unique<OutputThread>(nullptr, unread.ends[1]);
        other->write(given);
        QTRY_VERIFY(unread.isFull());
        other.reset(); // does not wait for its reader
    }

    void brokenOutputIsToldOnce()
    {
        const Pipe closed;
        ::close(closed.ends[0]);
        const int full = ::open("/dev/full", O_WRONLY | O_CLOEXEC);
        for (const int descriptor : {closed.ends[1], full}) {
            OutputThread output(nullptr, descriptor, full);
            const QSignalSpy broken(&output, &OutputThread::signalBroken),
                drained(&output, &OutputThread::signalDrained);
            output.writeError("for nobody");
            for (int i = 0; i < 3; ++i)
                output.write("a");
            output.drain();
            QTRY_COMPARE(drained.size(), 1);
            QCOMPARE(broken.size(), 1);
            QCOMPARE(broken.at(0).at(0).toString(), descriptor == full ? "No space left on device" : "");
        }
    }
};

ORDA_TEST_MAIN(BatchOutputTest)
#include "batch_output_test.moc"
