#include "ArrivalsListController.h"
#include "ModelFixture.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

namespace {

ConversionItem photo(const QString &name, ConversionStatus status = ConversionStatus::queued)
{
    ConversionItem item =
        ConversionItem::queuedFor(QUrl::fromLocalFile(QStringLiteral("/photos/") + name), {});
    item.status = status;
    return item;
}

void finish(ConversionItem &item)
{
    item.status = ConversionStatus::ready;
    item.outputName = QStringLiteral("out.png");
    item.outputURL = QUrl::fromLocalFile(QStringLiteral("/photos/Lumaport/out.png"));
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
    void shouldTouchOnlyTheRowThatChanged()
    {
        ArrivalsListModel list;
        const QAbstractItemModelTester tester(&list, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QList<ConversionItem> items{photo(QStringLiteral("c.heic")), photo(QStringLiteral("b.heic")),
                                    photo(QStringLiteral("a.heic"))};
        list.setItems(items);
        QSignalSpy changed(&list, &QAbstractItemModel::dataChanged);
        QSignalSpy inserted(&list, &QAbstractItemModel::rowsInserted);
        QSignalSpy removed(&list, &QAbstractItemModel::rowsRemoved);
        QSignalSpy reset(&list, &QAbstractItemModel::modelReset);

        finish(items[1]);
        list.setItems(items);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed.first().first().toModelIndex().row(), 1);
        items.prepend(photo(QStringLiteral("d.heic")));
        items.removeLast();
        list.setItems(items);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(inserted.size(), 1);
        QCOMPARE(removed.size(), 1);
        QCOMPARE(reset.size(), 0);
        QCOMPARE(list.rowCount(), 3);
        QCOMPARE(shown(list, 0, ArrivalsListModel::DisplayName).toString(), QStringLiteral("d.heic"));
        QCOMPARE(shown(list, 2, ArrivalsListModel::DisplayName).toString(), QStringLiteral("out.png"));
    }

    void shouldFollowAnyNewHistory()
    {
        ArrivalsListModel list;
        const QAbstractItemModelTester tester(&list, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QList<ConversionItem> items;
        for (const char name : {'a', 'b', 'c', 'd', 'e'}) {
            items.append(photo(QChar::fromLatin1(name)));
        }
        const auto names = [&] {
            QString text;
            for (int row = 0; row < list.rowCount(); ++row) {
                text += shown(list, row, ArrivalsListModel::DisplayName).toString();
            }
            return text;
        };
        list.setItems(items);
        QCOMPARE(names(), QStringLiteral("abcde"));
        list.setItems({items[4], items[1], items[3], items[0]});
        QCOMPARE(names(), QStringLiteral("ebda"));
        list.setItems({items[2], items[0], items[4]});
        QCOMPARE(names(), QStringLiteral("cae"));
        list.setItems({});
        QCOMPARE(names(), QString());
    }

    void shouldShowEachStateWithItsSymbolTextAndAction_data()
    {
        QTest::addColumn<ConversionStatus>("status");
        QTest::addColumn<QString>("symbol");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("action");
        QTest::newRow("queued") << ConversionStatus::queued << "clock"
                                << "Waiting to convert" << int(ArrivalsListModel::NoAction);
        QTest::newRow("converting") << ConversionStatus::converting << "arrow.triangle.2.circlepath"
                                    << "Converting on your Mac" << int(ArrivalsListModel::NoAction);
        QTest::newRow("ready") << ConversionStatus::ready << "checkmark"
                               << "Ready to use" << int(ArrivalsListModel::Reveal);
        QTest::newRow("failed") << ConversionStatus::failed << "exclamationmark.triangle"
                                << "Couldn’t convert. Try choosing the photo again."
                                << int(ArrivalsListModel::TryAgain);
    }

    void shouldShowEachStateWithItsSymbolTextAndAction()
    {
        QFETCH(ConversionStatus, status);
        QFETCH(QString, symbol);
        QFETCH(QString, text);
        QFETCH(int, action);
        ArrivalsListModel list;
        list.setItems({photo(QStringLiteral("a.heic"), status)});
        QCOMPARE(shown(list, 0, ArrivalsListModel::StatusSymbol).toString(), symbol);
        QCOMPARE(shown(list, 0, ArrivalsListModel::StatusText).toString(), text);
        QCOMPARE(shown(list, 0, ArrivalsListModel::RowAction).toInt(), action);
        QCOMPARE(shown(list, 0, ArrivalsListModel::IsFailed).toBool(), status == ConversionStatus::failed);
    }

    void shouldShowTheMessageOfAFailureAndTheConvertedFile()
    {
        ArrivalsListModel list;
        ConversionItem failed = photo(QStringLiteral("a.heic"), ConversionStatus::failed);
        failed.errorMessage = QStringLiteral("No room left.");
        ConversionItem ready = photo(QStringLiteral("b.heic"));
        finish(ready);
        list.setItems({failed, ready});
        QCOMPARE(shown(list, 0, ArrivalsListModel::StatusText).toString(), QStringLiteral("No room left."));
        QCOMPARE(shown(list, 0, ArrivalsListModel::DisplayFile).toUrl(), failed.sourceURL);
        QCOMPARE(shown(list, 0, ArrivalsListModel::RevealLabel).toString(),
                 QStringLiteral("Reveal a.heic in Finder"));
        QCOMPARE(shown(list, 1, ArrivalsListModel::DisplayFile).toUrl(), *ready.outputURL);
        QCOMPARE(shown(list, 1, ArrivalsListModel::RevealLabel).toString(),
                 QStringLiteral("Reveal out.png in Finder"));
    }

    void shouldActOnTheModel()
    {
        ModelFixture fixture;
        AppModel &model = fixture.launch();
        ArrivalsListController controller;
        controller.setModel(&model);
        QVERIFY(controller.isEmpty());
        QVERIFY2(!controller.canClear(), "nor by a button that has the focus but is not shown");
        QCOMPARE(controller.emptyHint(),
                 QStringLiteral("AirDrop into Photos, or choose a HEIC photo above."));

        ConversionItem ready = photo(QStringLiteral("b.heic"));
        finish(ready);
        const QUrl source = fixture.write(QStringLiteral("again.heic"));
        ConversionItem failed = ConversionItem::queuedFor(source, {});
        failed.status = ConversionStatus::failed;
        model.setItems({ready, failed});
        QCOMPARE(controller.readyText(), QStringLiteral("1 ready"));
        QVERIFY(controller.canClear());

        controller.reveal(0);
        QCOMPARE(fixture.workspace->revealed, QList<QUrl>{*ready.outputURL});
        controller.tryAgain(1);
        QCOMPARE(model.items().first().sourceURL, source);
        QVERIFY2(!controller.canClear(), "not while a conversion is running");
        ModelFixture::turn();
        QCOMPARE(fixture.engine->running.front().source, source);
    }
};

QTEST_MAIN(ArrivalsListTest)
#include "ArrivalsListTest.moc"
