// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// Carries out one action of the project view in the project root of RK_PROJECT_DIR, under the
// faults of fault_shim.cpp when that is preloaded.
//
//     operations_probe new
//     operations_probe copy <project>
//     operations_probe rename <project> <new name>
//     operations_probe delete <project>
//
// Prints "box: <title>" for every message box, which it answers with OK, and "calls: <number>" in
// the end: how many calls changed files.

#include "support/BoxAnswerer.h"

#include <RkBaseUI/CRkGraphicsProjectRectItem.h>
#include <RkBaseUI/CRkGraphicsProjectTextItem.h>
#include <RkBaseUI/CRkProjectManagerView.h>

#include <QGraphicsScene>
#include <QTextStream>

#include <dlfcn.h>

namespace {

CRkGraphicsProjectRectItem* tileNamed(const CRkProjectManagerView& view, const QString& name)
{
    const QList<QGraphicsItem*> items = view.scene()->items();
    for (QGraphicsItem* item : items) {
        auto* tile = dynamic_cast<CRkGraphicsProjectRectItem*>(item);
        if (tile && tile->GetProjectName() == name)
            return tile;
    }
    return nullptr;
}

bool act(CRkProjectManagerView& view, const QStringList& words)
{
    const QString action = words.value(1);
    if (action == QLatin1String("new")) {
        view.slotNewProject();
        return true;
    }
    CRkGraphicsProjectRectItem* tile = tileNamed(view, words.value(2));
    if (!tile)
        return false;
    tile->setSelected(true);
    if (action == QLatin1String("copy"))
        view.slotCopyProject();
    else if (action == QLatin1String("rename"))
        emit tile->GetTextItem()->editFinished(words.value(3));
    else if (action == QLatin1String("delete"))
        view.slotDeleteProject();
    else
        return false;
    return true;
}

} // namespace

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    CRkProjectManagerView view(nullptr);
    BoxAnswerer answers;

    const auto begin = reinterpret_cast<void (*)()>(dlsym(RTLD_DEFAULT, "rkFaultBegin"));
    const auto end = reinterpret_cast<int (*)()>(dlsym(RTLD_DEFAULT, "rkFaultEnd"));
    if (begin)
        begin();
    const bool isDone = act(view, QCoreApplication::arguments());
    const int calls = end ? end() : 0;

    QTextStream out(stdout);
    for (const ShownBox& box : answers.boxes)
        out << "box: " << box.title << '\n';
    out << "calls: " << calls << '\n';
    return isDone ? 0 : 2;
}
