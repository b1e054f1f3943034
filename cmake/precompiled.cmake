# Headers that most translation units take in, parsed once for each set of flags. The preset debug compiles each file
# alone and without them, so a file that lacks an include of its own is seen there.
set(talmir_core_headers
    <QByteArray> <QCoreApplication> <QDir> <QFile> <QHash> <QJsonArray> <QJsonDocument> <QSet> <QString> <QStringList>
    <QXmlStreamReader> <algorithm> <array> <cmath> <functional> <map> <memory> <mutex> <optional> <thread> <vector>)
set(talmir_window_headers <QApplication> <QComboBox> <QDialog> <QLabel> <QLineEdit> <QMessageBox> <QPainter>
    <QScrollArea> <QTimer>)
set(talmir_test_headers <gtest/gtest.h> <QRegularExpression> <random>)

# talmir_precompile(TARGET KIND ...): TARGET precompiles the headers of these kinds (core, window, test).
function(talmir_precompile target)
    foreach(kind ${ARGN})
        target_precompile_headers(${target} PRIVATE ${talmir_${kind}_headers})
    endforeach()
endfunction()

# talmir_precompiled(TARGET FROM): TARGET takes what FROM, which has the same flags, precompiles.
function(talmir_precompiled target from)
    target_precompile_headers(${target} REUSE_FROM ${from})
endfunction()
