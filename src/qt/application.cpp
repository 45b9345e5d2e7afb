#include "qt/application.h"

#include <QApplication>

namespace kv::qt {

Application::Application(int& argc, char** argv)
    : application_(std::make_unique<QApplication>(argc, argv)),
      desktop_(std::make_unique<QtDesktop>()) {}

Application::~Application() = default;

int Application::Run() {
    desktop_->Wake();
    return QApplication::exec();
}

}  // namespace kv::qt
