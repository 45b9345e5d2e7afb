#pragma once

#include <QObject>
#include <functional>
#include <string>
#include <vector>

#include "geofiles/table.h"
#include "workbench/commands.h"
#include "workbench/document/document_history.h"
#include "workbench/main_frame.h"
#include "workbench/map/map_canvas.h"
#include "workbench/status_line.h"
#include "workbench/work_runner.h"

namespace workbench {

/// Saves what the map shows, for other map programs.
class Exports : public QObject {
    Q_OBJECT
public:
    /// What it works on; it outlives the exports.
    struct Host {
        MainFrame& frame;
        const MapModel& model;
        const MapCanvas& canvas;
        WorkRunner& runner;
        StatusLine& status;
        const DocumentHistory& history;
        std::function<void(const QString&)> fail;
    };

    Exports(Host host, QObject* parent);

    /// `noMap` tells why nothing can be exported; empty where something can.
    void AddTo(QMenu& menu, Commands& commands, const Commands::WhyNot& noMap);

private:
    /// A kind of file.
    struct Format {
        const char* extension;
        const char* filter;
        /// Throws std::runtime_error where it cannot be written here.
        void (*need)();
        std::string (*bytesOf)(const std::vector<geofiles::Table>&);
    };
    static const Format kGeoPackage;
    static const Format kGeoJson;

    void Export(const Format& format);

    Host host_;
};

}  // namespace workbench
