// Turned and scaled pictures.
#ifndef ZELTK_IMAGETRANSFORM_H
#define ZELTK_IMAGETRANSFORM_H

#include <qpoint.h>

class QImage;
class QWMatrix;

namespace zeltk
{

// The image under a matrix without its translation; transparent where nothing comes to lie. `origin` receives
// where its corner (0, 0) lies. Null if the matrix flattens the image.
QImage transformed(const QImage& image, const QWMatrix& matrix, QPoint* origin);
// Where that corner lies, exactly, for an image of that size; and how large the result is.
void placeOf(const QWMatrix& matrix, int width, int height, double* left, double* top, int* newWidth,
             int* newHeight);

} // namespace zeltk

#endif
