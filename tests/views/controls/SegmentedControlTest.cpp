#include "ModelScene.h"

#include <QSignalSpy>

class SegmentedControlTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<ModelScene> m_scene;
    QQuickItem *m_format = nullptr;
    QQuickItem *m_png = nullptr;
    QQuickItem *m_jpeg = nullptr;

    OutputFormat chosen() const { return m_scene->model.settings().format; }

private Q_SLOTS:
    void init()
    {
        m_scene = std::make_unique<ModelScene>();
        m_scene->show(R"(
            import QtQuick
            import Lumaport.Options
            Rectangle {
                width: 300; height: 60; color: "white"
                FormatControl { objectName: "format"; x: 10; y: 10 }
                AppearanceControl { objectName: "appearance"; x: 150; y: 10 }
            })");
        m_format = m_scene->find("format");
        m_png = m_scene->find("segment0", m_format);
        m_jpeg = m_scene->find("segment1", m_format);
    }

    void cleanup() { m_scene.reset(); }

    void shouldChooseByPointerAndKeys()
    {
        m_scene->model.setSettings({.jpegQuality = 0.7, .notificationsEnabled = false});
        QSignalSpy writes(&m_scene->model, &AppModel::settingsChanged);
        m_scene->click(m_jpeg);
        QCOMPARE(chosen(), OutputFormat::jpeg);
        QCOMPARE(writes.size(), 1);
        m_jpeg->forceActiveFocus(Qt::TabFocusReason);
        for (int press = 0; press < 2; ++press) { // the second has no segment to go to
            m_scene->press(Qt::Key_Left);
            QCOMPARE(chosen(), OutputFormat::png);
            QVERIFY2(m_png->hasActiveFocus(), "the focus follows the choice");
        }
        m_scene->press(Qt::Key_Right);
        const ConversionSettings expected{
            .format = OutputFormat::jpeg, .jpegQuality = 0.7, .notificationsEnabled = false};
        QCOMPARE(m_scene->model.settings(), expected);
        QVERIFY(Scene::accessible(m_jpeg)->state().selected);
        QVERIFY(!Scene::accessible(m_png)->state().selected);
        QQuickItem *light = m_scene->find("segment1", m_scene->find("appearance"));
        QCOMPARE(Scene::accessible(light)->text(QAccessible::Description), "Light appearance");
    }

    void shouldBeOneStopForTheTabKey()
    {
        m_png->forceActiveFocus(Qt::TabFocusReason);
        m_scene->press(Qt::Key_Tab);
        QSignalSpy writes(&m_scene->model, &AppModel::appearanceModeChanged);
        for (const AppearanceMode mode : {AppearanceMode::light, AppearanceMode::dark}) {
            m_scene->press(Qt::Key_Right);
            QCOMPARE(m_scene->model.appearanceMode(), mode);
        }
        QCOMPARE(writes.size(), 2);
        QVERIFY(m_scene->fixture.appearance->isDark());
        QCOMPARE(chosen(), OutputFormat::png);
    }

    void shouldSlideThePillAndJumpWithReducedMotion()
    {
        const QQuickItem *pill = m_scene->find("pill", m_format);
        m_scene->click(m_png); // the chosen one already
        QCOMPARE(pill->x(), m_png->x());
        m_scene->click(m_jpeg);
        QVERIFY(pill->x() < m_jpeg->x());
        QTRY_COMPARE(pill->x(), m_jpeg->x());

        m_scene->appearance.setMotion(SystemAppearance::Motion::Reduced);
        m_scene->click(m_png);
        QCOMPARE(pill->x(), m_png->x());
        QTest::mouseMove(&m_scene->window, QPoint(5, 5));
        // The pill left of "PNG", its top two points above the segment, and the track between the segments.
        const QImage picture = m_scene->window.grabWindow();
        QCOMPARE(picture.pixelColor(10 + 4 + 4, 10 + 4 + 12).name(), "#3978ff");
        QCOMPARE(picture.pixelColor(10 + 4 + 26, 10 + 4 - 2).name(), "#3978ff");
        QCOMPARE(picture.pixelColor(10 + 4 + 53 + 3, 10 + 18).name(), "#e7eefc");
    }
};

QTEST_MAIN(SegmentedControlTest)
#include "SegmentedControlTest.moc"
