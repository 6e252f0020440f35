//   qt_peer (qt_query|qt_model) WORKLOAD FOLDER (full|off)

#include <QtCore/QCoreApplication>
#include <iostream>
#include <string>

#include "peers/qt_database.h"

int main(int count, char** words) {
    using namespace cvdeveloper::bench;
    const QCoreApplication application(count, words);
    try {
        if (count != 5) {
            std::cerr << "usage: see the top of qt_main.cpp\n";
            return 2;
        }
        const Order order{.side = words[1],
                          .workload = words[2],
                          .folder = words[3],
                          .full_sync = std::string(words[4]) == "full"};
        serve(order.side == "qt_model" ? qt_model_workload(order) : qt_query_workload(order));
        return 0;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
