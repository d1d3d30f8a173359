// Turned and scaled pictures.
#include "painting/imagetransform.h"

#include <qimage.h>
#include <qwmatrix.h>

#include <algorithm>

namespace zeltk
{

void placeOf(const QWMatrix& matrix, int width, int height, double* left, double* top, int* newWidth,
             int* newHeight)
{
    const double xs[] = {0.0, matrix.m11() * width, matrix.m21() * height,
                         matrix.m11() * width + matrix.m21() * height};
    const double ys[] = {0.0, matrix.m12() * width, matrix.m22() * height,
                         matrix.m12() * width + matrix.m22() * height};
    *left = *std::min_element(xs, xs + 4);
    *top = *std::min_element(ys, ys + 4);
    *newWidth = qRound(*std::max_element(xs, xs + 4) - *left);
    *newHeight = qRound(*std::max_element(ys, ys + 4) - *top);
}

// Each pixel of the result asks which pixel of the image covers its middle.
QImage transformed(const QImage& image, const QWMatrix& matrix, QPoint* origin)
{
    double left;
    double top;
    int width;
    int height;
    placeOf(matrix, image.width(), image.height(), &left, &top, &width, &height);
    *origin = QPoint(qRound(left), qRound(top));
    bool invertible = false;
    const QWMatrix back =
        QWMatrix(matrix.m11(), matrix.m12(), matrix.m21(), matrix.m22(), -left, -top).invert(&invertible);
    QImage result(width, height, 32);
    if (!invertible || result.isNull())
        return QImage();
    result.setAlphaBuffer(true);
    result.fill(0);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            double fx;
            double fy;
            back.map(x + 0.5, y + 0.5, &fx, &fy);
            if (fx >= 0 && fx < image.width() && fy >= 0 && fy < image.height())
                result.setPixel(x, y, image.pixel(static_cast<int>(fx), static_cast<int>(fy)));
        }
    return result;
}

} // namespace zeltk
