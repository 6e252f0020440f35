#include "maintenance.h"

#include <cstdlib>
#include <functional>
#include <iostream>

#include "host/maintenance/backup.h"
#include "host/maintenance/check.h"
#include "options.h"
#include "terminal_progress.h"

namespace cvdev {

int check(Words arguments) {
    const std::string folder = only_folder(read_options(arguments));
    TerminalProgress progress("Prüfen");
    const auto report = cvdeveloper::standalone::check_folder(folder, std::ref(progress));
    progress.clear();
    for (const std::string& problem : report.problems) {
        std::cout << problem << "\n";
    }
    if (!report.problems.empty()) {
        std::cout << folder << " ist nicht in Ordnung: " << report.problems.size() << " Fehler.\n";
        return EXIT_FAILURE;
    }
    std::cout << folder << " ist in Ordnung: " << report.tables << " Tabellen, " << report.rows
              << " Datensätze, " << report.attachments << " gespeicherte Anlagen.\n";
    return EXIT_SUCCESS;
}

int backup(Words arguments) {
    const Options options = read_options(arguments);
    require_words(options, 2, "FOLDER and FILE are");
    TerminalProgress progress("Sichern");
    const auto size =
        cvdeveloper::standalone::back_up(options.words[0], options.words[1], std::ref(progress));
    progress.clear();
    std::cout << options.words[0] << " ist in " << options.words[1] << " gesichert: " << size
              << " Bytes.\n";
    return EXIT_SUCCESS;
}

int restore(Words arguments) {
    const Options options = read_options(arguments);
    require_words(options, 2, "FILE and FOLDER are");
    TerminalProgress progress("Zurückholen");
    cvdeveloper::standalone::restore(options.words[0], options.words[1], std::ref(progress));
    progress.clear();
    std::cout << options.words[1] << " ist aus " << options.words[0] << " wiederhergestellt.\n";
    return EXIT_SUCCESS;
}

}  // namespace cvdev
