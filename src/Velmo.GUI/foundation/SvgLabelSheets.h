#pragma once

#include "foundation/OvixSvgLabel.h"

/// The style sheets of an icon label, from plain values.
struct SvgLabelSheets
{
    QString normal;
    QString checked;

    struct Look
    {
        OvixSvgLabel::ColorScheme scheme;
        bool backgroundVisible;
        bool hoverVisible;
        bool checkedBackgroundVisible;
        QMargins padding;
        QMargins backgroundMargins;
        int roundedBorder;
    };

    static SvgLabelSheets of(const Look &look);
};
