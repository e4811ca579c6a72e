// What most tests of the window include, compiled once; Qt's own headers for tests are not the same
// in every folder.

#include "tests/support/Printers.h"
#include "tests/till/support/TillFixture.h"
#include "window/desk/TillWindow.h"
#include "window/receipt/ReceiptTable.h"
#include "window/shelf/Shelf.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTableView>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
