#include "ui/shell/InputMethodWatch.h"

#include "platform/InputMethod.h"
#include "platform/Services.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QWindow>

void FollowInputMethod()
{
    const auto refresh = [] { PlatformServices().inputMethod->Refresh(); };
    const QInputMethod *const method = QGuiApplication::inputMethod();
    QObject::connect(method, &QInputMethod::localeChanged, qApp, refresh);
    QObject::connect(qApp, &QGuiApplication::focusWindowChanged, qApp, refresh);
    QObject::connect(qApp, &QGuiApplication::focusObjectChanged, qApp, refresh);
    refresh();
}
