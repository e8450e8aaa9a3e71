#pragma once

#include <QApplication>

/// The application object. Its destructor is the program's shutdown, in every kind of run and also while an exception
/// unwinds the entry: it saves the settings.
class Application final : public QApplication
{
    Q_OBJECT

public:
    /// Both arguments must outlive the object; the toolkit keeps references to them.
    Application(int &argumentCount, char **arguments);
    ~Application() override;

    /// Prepares a run with windows; called once, before the event loop. Throws a plain character string when there is
    /// no data directory to work in.
    void init();
};
