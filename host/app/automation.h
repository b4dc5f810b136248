#pragma once

#include "host/app/commandline.h"
#include "host/app/runreport.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

class ContentPlugin;
class MainWindow;
class Session;

/// Does what the command line asks for, in order: when the scan has ended it checks, waits for the
/// pictures on screen, takes the screenshot, recovers, reports, and ends the program with 0, or 1
/// when something failed.
class Automation : public QObject
{
    Q_OBJECT

public:
    Automation(const CommandLine &wishes, const ContentPlugin &plugin, Session &session,
               MainWindow &window);

    void fail(const QString &message);

private:
    void scanEnded();
    void check();
    void waitForPictures();
    void takeScreenshot();
    void recover();
    void finish();

    const CommandLine m_wishes;
    const ContentPlugin &m_plugin;
    Session &m_session;
    MainWindow &m_window;
    RunReport m_report;
    QElapsedTimer m_clock;
    QTimer m_quiet; // nothing has happened to a thumbnail for as long
    QTimer m_patience;
    bool m_failed = false;
    bool m_waiting = false;
    bool m_started = false;
    bool m_recovering = false;
};
