#pragma once

#include <QApplication>

/// The application object. Its destructor is the program's shutdown, in every kind of run and also while an exception
/// unwinds the entry.
class Application final : public QApplication
{
    Q_OBJECT

public:
    /// Both arguments must outlive the object; the toolkit keeps references to them.
    Application(int &argumentCount, char **arguments);
    ~Application() override;
};
