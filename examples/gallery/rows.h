// The rows of the gallery, from top to bottom: one per class.
#ifndef ROWS_H
#define ROWS_H

class GalleryWindow;

typedef void (*AddRow)(GalleryWindow& gallery);

void addActiveLabelRow(GalleryWindow& gallery);

const AddRow galleryRows[] = {
    addActiveLabelRow,
};

#endif
