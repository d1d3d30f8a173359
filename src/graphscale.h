// The arithmetic of the graph: from values to rows and back.
#ifndef GRAPHSCALE_H
#define GRAPHSCALE_H

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
    const double rows = (value - minimum) / (maximum - minimum) * height;
    if (!(rows > -1.0 && rows < bottom + 1.0))
        return 0;
    return bottom - (int)rows;
}

// The value that stands at a height, counted from the top.
inline double valueAtRow(int row, double minimum, double maximum, int height)
{
    return minimum + (double)(height - row) / (double)height * (maximum - minimum);
}

#endif
