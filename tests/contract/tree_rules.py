"""The tables that check-tree goes by."""

import re

# Which folders of src a folder may include besides itself.
LAYERS = {
    "common": set(),
    "frame": {"common"},
    "dialogs": {"common"},
    "filedialog": {"common", "dialogs"},
    "filemanager": {"common", "dialogs"},
    "progress": {"common"},
    "unlock": {"common"},
}

# Inside src/dialogs: which other class a class may include.
DIALOGS = {
    "QZelEncDialog": {"QZelDialog"},
    "QZelPwdInputDialog": {"QZelEncDialog"},
    "QZelFolderNameDialog": {"QZelDialog", "QUIMessageBox"},
    "OnTopQuestion": {"QUIMessageBox"},
}

# <QDialog>, <QtCore/qglobal.h>: a Qt header that is not private. <memory>: the standard library's.
QT_PUBLIC = re.compile(r"(Qt\w+/)?(Q\w+|q\w+\.h)(?<!_p\.h)")
QT_OR_STANDARD = re.compile(QT_PUBLIC.pattern + r"|[a-z_]+")

# Tests that compile parts of the library which it does not export.
TESTS_OF_INTERNALS = ["tst_FileNameRules", "tst_FolderTree", "tst_ListingModel",
                      "tst_OncePaintedTree", "tst_Paths", "tst_QZelFileDialog_form"]

FILE_LINES = {"src": 400, "designer": 400, "examples": 400, "benchmarks": 400,
              "tests": 450}
FUNCTION_LINES = 50

EVERYWHERE = ["src", "designer", "examples", "benchmarks", "tests", "docs", "cmake", "tools",
              "resources"]
FORBIDDEN_WORDS = {
    r"\bTODO\b": EVERYWHERE,
    r"\bFIXME\b": EVERYWHERE,
    r"\bXXX\b": EVERYWHERE,
    r"\bHACK\b": EVERYWHERE,
    # The library does not log.
    r"\b(qDebug|qInfo|qWarning|qCritical|printf|std::c(out|err))\b": ["src"],
}
TEXT_SUFFIXES = {"", ".h", ".cpp", ".ui", ".txt", ".cmake", ".in", ".py", ".md", ".qss", ".ts",
                 ".qrc", ".svg", ".sh"}
