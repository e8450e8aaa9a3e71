#pragma once

class QFile;

/// Opens for reading what has content that ends: a file, or a block device such as a stick. Anything else is not opened
/// at all, or closed again; a pipe, a socket or a terminal could keep its reader waiting for ever. Returns whether the
/// file is open.
bool openContent(QFile &file);
