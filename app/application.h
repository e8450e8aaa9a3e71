#pragma once

#include <QApplication>

#include <memory>

class MainWindow;

/// The application object, owner of the main window.
///
/// Its destructor is the program's shutdown, in every kind of run and also while an exception unwinds the entry: it
/// saves the settings, deletes the main window, which writes its own settings and saves again, and deletes the language
/// manager.
class Application final : public QApplication
{
    Q_OBJECT

public:
    /// Both arguments must outlive the object; the toolkit keeps references to them.
    Application(int &argumentCount, char **arguments);
    ~Application() override;

    /// Starts a run with windows; called once, before the event loop. The property "AUTO_ADD" may hold the path of a
    /// file to begin with. Throws a plain character string when there is no data directory to work in.
    void init();

private:
    void createMainWindow();
    void greetOnFirstStart();
    void showMainWindow();

    std::unique_ptr<MainWindow> mainWindow;
};
