#pragma once

#include <QString>

// A demo installation whose main database holds a generated catalogue of n products, built once
// into the cache folder and kept there. Needs a QGuiApplication.
QString CatalogoEnCache(const QString& cache, int n);

// A fresh copy of an installation, so that a run's saves do not pile up in the cache.
void CopiarInstalacion(const QString& origen, const QString& destino);
