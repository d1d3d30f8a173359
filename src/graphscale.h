// The arithmetic of the graph: seconds, ranges, values to rows and back.
#ifndef GRAPHSCALE_H
#define GRAPHSCALE_H

// Rounds to a double where the processor computes with more digits, so that every machine shows the same.
inline double asDouble(double number)
{
#if defined(__FLT_EVAL_METHOD__) && __FLT_EVAL_METHOD__ == 0
    return number;
#else
    volatile double rounded = number;
    return rounded;
#endif
}

// The seconds from one time to another, as a number of 32 bits that may wrap around.
template <class Time>
int secondsBetween(Time earlier, Time later)
{
    return (int)((unsigned int)later - (unsigned int)earlier);
}

// Makes an equal pair a range of height 1. Of a pair the wrong way round only the maximum is raised, by one.
inline void repairRange(double& minimum, double& maximum)
{
    if (minimum < maximum)
        return;
    if (maximum <= minimum - 1)
        maximum += 1;
    else
        minimum -= 1;
}

// The row of a value in an area of that height, whose last row is `bottom`. What lies outside of the area,
// above or below, and what cannot be told in an empty range, is at row 0.
inline int rowOfValue(double value, double minimum, double maximum, int height, int bottom)
{
    const double part = asDouble(asDouble(value - minimum) / asDouble(maximum - minimum));
    const double rows = asDouble(part * height);
    if (!(rows > -1.0 && rows < bottom + 1.0))
        return 0;
    return bottom - (int)rows;
}

// The value that stands at a height, counted from the top.
inline double valueAtRow(int row, double minimum, double maximum, int height)
{
    const double part = asDouble(((double)height - row) / height);
    return asDouble(minimum + asDouble(part * asDouble(maximum - minimum)));
}

#endif
