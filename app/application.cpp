#include "app/application.h"

Application::Application(int &argumentCount, char **arguments)
    : QApplication(argumentCount, arguments)
{
}

Application::~Application() = default;
