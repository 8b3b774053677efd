#include "ArrivalsListController.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

namespace {

ConversionItem photo(const QString &name, ConversionStatus status = ConversionStatus::queued)
{
    ConversionItem item = ConversionItem::queuedFor(QUrl::fromLocalFile("/photos/" + name), {});
    item.status = status;
    return item;
}

void finish(ConversionItem &item)
{
    item.status = ConversionStatus::ready;
    item.outputName = "out.png";
    item.outputURL = QUrl::fromLocalFile("/photos/Lumaport/out.png");
}

} // namespace

class ArrivalsListTest : public QObject
{
    Q_OBJECT

    static QVariant shown(ArrivalsListModel &list, int row, ArrivalsListModel::Role role)
    {
        return list.data(list.index(row), role);
    }

private Q_SLOTS:
    void shouldFollowTheHistoryRowByRow()
    {
        ArrivalsListModel list;
        const QAbstractItemModelTester tester(&list, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QStringList changes;
        const auto note = [&](const QString &change) { changes << change; };
        connect(&list, &ArrivalsListModel::dataChanged, this,
                [&](const QModelIndex &index) { note(QStringLiteral("changed %1").arg(index.row())); });
        connect(&list, &ArrivalsListModel::rowsInserted, this, [&] { note("inserted"); });
        connect(&list, &ArrivalsListModel::rowsRemoved, this, [&] { note("removed"); });
        connect(&list, &ArrivalsListModel::rowsMoved, this, [&] { note("moved"); });
        connect(&list, &ArrivalsListModel::modelReset, this, [&] { note("reset"); });
        QList<ConversionItem> items{photo("a"), photo("b"), photo("c"), photo("d"), photo("e")};
        const auto show = [&](const QList<ConversionItem> &history) {
            changes.clear();
            list.setItems(history);
            QString names;
            for (int row = 0; row < list.rowCount(); ++row) {
                names += shown(list, row, ArrivalsListModel::DisplayName).toString();
            }
            return names;
        };
        QCOMPARE(show(items), "abcde");
        finish(items[1]);
        QCOMPARE(show(items), "aout.pngcde");
        QCOMPARE(changes, QStringList("changed 1"));
        items[1].outputName = "b";
        items.prepend(photo("f"));
        QCOMPARE(show(items), "fabcde");
        QCOMPARE(changes, QStringList({"inserted", "changed 2"}));
        QCOMPARE(show({items[5], items[2], items[4], items[1]}), "ebda");
        QVERIFY(!changes.contains("reset"));
        QCOMPARE(show({items[3], items[1], items[5]}), "cae");
        QCOMPARE(show({}), "");
        QCOMPARE(show({photo("two\nlines"), photo(u"\u05d0.heic"_qs)}),
                 u"two lines\u2068\u05d0.heic\u2069"_qs);
    }

    void shouldShowEachStateWithItsSymbolTextAndAction_data()
    {
        QTest::addColumn<ConversionItem>("item");
        QTest::addColumn<QString>("symbol");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("action");
        const ConversionItem failed = photo("a.heic", ConversionStatus::failed);
        ConversionItem explained = failed;
        explained.errorMessage = "No room left.";
        ConversionItem ready = photo("a.heic");
        finish(ready);
        QTest::newRow("queued") << photo("a.heic") << "clock"
                                << "Waiting to convert" << int(ArrivalsListModel::NoAction);
        QTest::newRow("converting") << photo("a.heic", ConversionStatus::converting)
                                    << "arrow.triangle.2.circlepath"
                                    << "Converting on your Mac" << int(ArrivalsListModel::NoAction);
        QTest::newRow("ready") << ready << "checkmark"
                               << "Ready to use" << int(ArrivalsListModel::Reveal);
        QTest::newRow("failed") << failed << "exclamationmark.triangle"
                                << "Couldn’t convert. Try choosing the photo again."
                                << int(ArrivalsListModel::TryAgain);
        QTest::newRow("failed with a message") << explained << "exclamationmark.triangle"
                                               << "No room left." << int(ArrivalsListModel::TryAgain);
    }

    void shouldShowEachStateWithItsSymbolTextAndAction()
    {
        QFETCH(ConversionItem, item);
        ArrivalsListModel list;
        list.setItems({item});
        QTEST(shown(list, 0, ArrivalsListModel::StatusSymbol).toString(), "symbol");
        QTEST(shown(list, 0, ArrivalsListModel::StatusText).toString(), "text");
        QTEST(shown(list, 0, ArrivalsListModel::RowAction).toInt(), "action");
        QCOMPARE(shown(list, 0, ArrivalsListModel::IsFailed).toBool(),
                 item.status == ConversionStatus::failed);
        QCOMPARE(shown(list, 0, ArrivalsListModel::DisplayFile).toUrl(),
                 item.outputURL.value_or(item.sourceURL));
        QCOMPARE(shown(list, 0, ArrivalsListModel::RevealLabel).toString(),
                 item.outputName ? "Reveal out.png in Finder" : "Reveal a.heic in Finder");
    }
};

QTEST_MAIN(ArrivalsListTest)
#include "ArrivalsListTest.moc"
