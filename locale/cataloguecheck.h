#pragma once

#include <QByteArray>

/// Whether the bytes are a compiled catalogue that the toolkit can be trusted with: its loader follows every offset
/// and length in a catalogue as it stands.
///
/// All of it must hold: at most 4 MiB; the magic number; no section twice, none that reaches beyond the end, and none
/// that names other catalogues to load; every message and every context name whole and inside its section.
bool isSoundCatalogue(const QByteArray &bytes);

inline constexpr int maximumCatalogueSize = 4 * 1024 * 1024;
