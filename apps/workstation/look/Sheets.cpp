#include "look/Sheets.h"

using namespace Qt::StringLiterals;

// clang-format off

QString Sheets::window()
{
    return u"#window { background-color:rgb(39,39,39); }"
            "#header { background-color:rgb(28,28,28); border-bottom:1px solid rgb(59,59,59); }"
            "#accent { background-color:rgb(116,211,252); border-radius:2px; }"
            "#title { font-family:Inter; font-size:20px; font-weight:600; color:rgb(219,219,219); }"
            "#subtitle { font-family:Inter; font-size:11px; color:rgb(156,156,156); }"
            "#release { font-family:Inter; font-size:11px; color:rgb(156,156,156); background-color:rgb(59,59,59);"
            " border-radius:4px; padding:4px 8px; }"
            "#panel { background-color:rgb(28,28,28); border-radius:4px; }"
            "#panelTitle { font-family:Inter; font-size:13px; font-weight:600; color:rgb(219,219,219); }"
            "#panelNote { font-family:Inter; font-size:11px; color:rgb(156,156,156); }"
            "#emptyNote { font-family:Inter; font-size:13px; color:rgb(156,156,156); }"
            "#player { background-color:rgb(28,28,28); border-top:1px solid rgb(59,59,59); }"
            "#statusLine { background-color:rgb(28,28,28); border-top:1px solid rgb(59,59,59); }"
            "#statusText { font-family:Inter; font-size:11px; color:rgb(156,156,156); }"
            "#statusText[problem=\"true\"] { color:rgb(249,199,26); }"
            "#unsaved { font-family:Inter; font-size:11px; color:rgb(116,211,252); }"
            "#standingProblem { font-family:Inter; font-size:11px; color:rgb(249,199,26); }"_s;
}

QString Sheets::nameList()
{
    return u"QListWidget { font-family:Inter; font-size:11px; border:0px; background-color:transparent; }"
            "QListWidget::item { height:28px; padding-left:8px; border-radius:3px; color:rgb(156,156,156); }"
            "QListWidget::item:hover { background-color:rgba(255,255,255,38); color:rgb(255,255,255); }"
            "QListWidget::item:selected { background-color:rgba(116,211,252,48); color:rgb(116,211,252); }"_s;
}

QString Sheets::library()
{
    return u"QListView { font-family:Inter; font-size:11px; border:0px; background-color:rgb(39,39,39);"
            " color:rgb(156,156,156); padding:8px; }"
            "QListView::item { padding:3px; border-radius:3px; color:rgb(156,156,156); }"
            "QListView::item:hover { background-color:rgba(255,255,255,38); color:rgb(255,255,255); }"
            "QListView::item:selected { background-color:rgba(116,211,252,48); color:rgb(116,211,252); }"_s;
}

QString Sheets::toolPanel()
{
    return u"#panel { background-color:rgb(39,39,39); }"_s;
}

QString Sheets::scrollBar()
{
    return u"QScrollBar { background-color:rgb(59,59,59); border-radius:5px; }"
            "QScrollBar:vertical { width:10px; }"
            "QScrollBar:horizontal { height:10px; }"
            "QScrollBar::handle { background-color:rgb(81,81,81); margin:2px; border-radius:3px; }"
            "QScrollBar::handle:vertical { min-height:20px; }"
            "QScrollBar::handle:horizontal { min-width:20px; }"
            "QScrollBar::handle:hover { background-color:rgb(116,211,252); }"
            "QScrollBar::add-line, QScrollBar::sub-line { width:0px; height:0px; }"_s;
}

QString Sheets::button()
{
    return u"QPushButton { font-family:Inter; font-size:11px; color:rgb(219,219,219); background-color:rgb(59,59,59);"
            " border:0px; border-radius:4px; padding:8px 20px; }"
            "QPushButton:default { color:rgb(28,28,28); background-color:rgb(116,211,252); }"
            "QPushButton:hover { background-color:rgb(81,81,81); }"
            "QPushButton:default:hover { background-color:rgb(160,226,253); }"
            "QPushButton:focus { border:1px solid rgb(219,219,219); padding:7px 19px; }"
            "QPushButton:disabled { color:rgb(105,105,105); background-color:rgb(59,59,59); }"_s;
}

QString Sheets::secondaryText()
{
    return u"QLabel { font-family:Inter; font-size:11px; color:rgb(156,156,156); }"_s;
}

QString Sheets::clearScrollArea()
{
    return u"QScrollArea { border:0px; background-color:transparent; }"_s;
}

// clang-format on
