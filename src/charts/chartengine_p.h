// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_CHARTENGINE_P_H
#define UTILS_CHARTENGINE_P_H

// Internal to the library: the engine that every live chart class drives. It
// keeps the plots, their series, curves and markers, applies the sample rules,
// redraws incrementally and navigates over the history. Not installed.

#include "charts/chartrules_p.h"
#include "charts/redrawthrottle_p.h"
#include "charts/charttimeline.h"

#include <QColor>
#include <QPen>
#include <QPoint>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class QComboBox;
class QDockWidget;
class QLabel;
class QMainWindow;
class QPushButton;
class QScrollArea;
class QTimer;
class QVBoxLayout;
class QWidget;
class QwtPlotDirectPainter;
class QwtPlotMarker;
class QwtPlotZoneItem;
class QwtLegend;

namespace Utils {

class CurveFactory;
class CustomCurve;
class Plot;
class ValueMarker;
class ValueOverTime;

namespace Charts {

class AbstractChart;

//! What kind of value marker a chart puts on its plots.
enum class MarkerKind { Plain, Color, MultiList };

//! How a chart is built; the variants differ only here and in their own operations.
struct ChartConfig
{
    int plots = 1;
    QMainWindow *mainWindow = nullptr;
    bool secondMarker = false;
    bool secondFlag = false;
    Rules::SampleRules rules = Rules::kSingleCurve;
    MarkerKind marker = MarkerKind::Plain;
    //! Curves per plot created at construction (the colour chart's channels); more come on demand.
    int curvesPerPlot = 1;
    bool legend = false;
    //! Charts without time have no docks and no time-stamped appends.
    bool timed = true;

    //! A time chart of \a plots plots, docked in \a mainWindow when one is given.
    static ChartConfig timeChart(int plots, QMainWindow *mainWindow, bool secondMarker, bool secondFlag)
    {
        ChartConfig config;
        config.plots = plots;
        config.mainWindow = mainWindow;
        config.secondMarker = secondMarker;
        config.secondFlag = secondFlag;
        return config;
    }

    //! A multi-curve chart: its break rules, a legend, \a marker's label and \a curves curves per plot.
    static ChartConfig multiCurve(int plots, QMainWindow *mainWindow, bool secondMarker, bool secondFlag,
                                  MarkerKind marker, int curves = 1)
    {
        ChartConfig config = timeChart(plots, mainWindow, secondMarker, secondFlag);
        config.rules = Rules::kMultiCurve;
        config.legend = true;
        config.marker = marker;
        config.curvesPerPlot = curves;
        return config;
    }
};

//! One curve of a plot: its series, its curve on the plot and its copy on the time line.
struct ChartCurve
{
    std::unique_ptr<ValueOverTime> series;
    CustomCurve *curve = nullptr;
    CustomCurve *overview = nullptr;
    int lastDrawn = -1;
    //! The same for the copy on the time line, which is drawn anew only with the time line.
    int overviewDrawn = -1;
    bool hidden = false;
    // What the curves were last given; they are handed the arrays again when
    // these change (new memory at once, more samples at the next redraw).
    const double *syncedX = nullptr;
    int syncedCount = 0;
};

//! One graph of a chart.
struct ChartPlot
{
    Plot *plot = nullptr;
    std::unique_ptr<CurveFactory> factory;
    std::vector<ChartCurve> curves; // curve 0 is the plot's series
    ValueMarker *marker = nullptr;
    ValueMarker *secondMarker = nullptr;
    QWidget *row = nullptr;          // the plot with its header row
    QWidget *header = nullptr;       // title, combo box, zoom bar
    QLabel *titleLabel = nullptr;
    QLabel *customLabel = nullptr;
    QComboBox *comboBox = nullptr;
    QWidget *zoomBar = nullptr;
    QPointer<QDockWidget> dock;
    QwtLegend *legend = nullptr;
    std::vector<QwtPlotZoneItem *> rectangles;
    std::vector<QwtPlotMarker *> xLines;
    QPen xLinePen = QPen(QColor(120, 120, 120), 1, Qt::DashLine);
    QString title;
    bool independent = false;
    bool dockVisible = true;
    // The newest values for the markers, shown at the next redraw.
    double markerValue = 0.0;
    double markerSecond = 0.0;
    bool markerPending = false;
    QList<double> markerList;
    QList<int> markerTypes;
    QList<QColor> markerColors;
    QString markerName;
    enum class ListForm { None, Color, List, ColorList } listForm = ListForm::None;
    //! The name and number of values the curves were last named after (vAppendDataMultipleCurves).
    QString curvesNamedAfter;
    int curvesNamed = -1;
};

class ChartEngine
{
public:
    ChartEngine(AbstractChart *owner, const ChartConfig &config);
    ~ChartEngine();

    // Construction, in the order the chart calls it.
    void createPlots();
    void initMembers();
    void layOut();

    // Samples.
    void append(int plot, double data, bool update, double data1, double dataExtra, double timeValue);
    void appendNoTime(int plot, double value, double position);
    //! The marker gets the values in the plot's list form, set by the caller beforehand (unless \a toMarker is false).
    void appendCurves(int plot, const QList<double> &values, const QList<int> &curves, const QList<QColor> &colors,
                      bool update, double timeValue, bool breaks, bool toMarker = true);
    void addExtra();
    //! Appends \a value at \a time to extra series \a index.
    void appendExtra(int index, double value, double time);
    void clear();
    void clear(int plot);
    ChartCurve *curve(int plot, int index, bool create);

    //! Hands the series' arrays to its curves when they changed.
    void sync(ChartCurve &c);
    void syncAll();
    //! Called after each append: keeps the history bounded and the curves' memory valid.
    void afterAppend(ChartCurve &c);
    //! Drops the oldest samples above the cap.
    bool trim(ChartCurve &c);

    // Redraw.
    //! After new samples: redraws now, unless the last redraw is less than 20 ms ago.
    void dataUpdated();
    //! The frame: follows or freezes, paints the new samples.
    void frame();
    void redrawNow();
    void replotAll();
    //! The time line was drawn anew: its curves are complete.
    void overviewRedrawn();
    void setVisibleWindow(double left, double right);
    void pushMarkers();

    // Navigation.
    Rules::Window timeLineWindow() const;
    void moveTimeLine(const Rules::Window &window);
    void passSelectorOn();
    double newestX() const;
    double firstX() const;

    // Looks and docks.
    void attachCurves(ChartCurve &c, ChartPlot &p);
    void applyCurvePen(ChartCurve &c, const QPen &pen, const QBrush &brush);
    void setCentralWidget();
    void updateLayout();
    QWidget *buildZoomBar(int plot);
    QComboBox *buildCombo(int plot, const QStringList &items, bool hidden);
    int plotIndexOf(const QObject *sender) const;
    bool valid(int plot) const { return plot >= 0 && plot < int(plots.size()); }

    AbstractChart *q;
    ChartConfig config;
    std::vector<ChartPlot> plots;
    QPointer<ChartTimeLine> timeLine;
    std::vector<ChartCurve> extra; // the custom curves, on plot 0
    QMainWindow *mainWindow = nullptr;
    QPointer<QWidget> central;
    QScrollArea *scrollArea = nullptr;
    QWidget *plotsWidget = nullptr;
    QVBoxLayout *plotsLayout = nullptr;
    QWidget *statusRow = nullptr;
    QLabel *statusIcon = nullptr;
    QLabel *statusText = nullptr;
    QwtPlotDirectPainter *painter = nullptr;
    //! Single shot, 500 ms: sendDelayValue() once the axes have settled.
    QTimer *delayTimer = nullptr;
    //! Samples that come within 20 ms of a redraw wait for the cool-down's end.
    std::unique_ptr<RedrawThrottle> throttle;
    bool trimmed = false;

    bool plottingEnabled = true;
    bool followNewest = false;
    Rules::Window window{0.0, 0.0};
    bool filling = true;
    QPen curvePen;
    QBrush curveBrush;
    bool fullReplot = false;
    bool dockFixedSize = false;
    int zoomBarPlot = 1;
    bool refreshThresholds = false;
    bool redrawSuppressed = false;
    bool chartUpdate = true;
    QPoint lastMouse;
    int lastHighlight = -1;
    // Room around the newest sample when the view jumps to it (ms).
    double marginLeft = 0.0;
    double marginRight = 0.0;
    // Set while the chart itself moves the time line, so that it does not take
    // the move for the user's choice to follow or not.
    bool programmatic = false;
    double xMax = 3.1536e10;
};

} // namespace Charts
} // namespace Utils

#endif // UTILS_CHARTENGINE_P_H
