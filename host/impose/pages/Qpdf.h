#pragma once

// What is used of the library that reads and writes PDFs; its headers are included here alone.

// Nothing here uses its pointers of former days, and it wants that said.
#define POINTERHOLDER_TRANSITION 4

// Clang 14 refuses to compile a class for JSON that these headers name but do not need.
#if defined(__clang__) && __clang_major__ < 16
#define JSON_HH
class JSON;
#endif

#include <qpdf/Pipeline.hh>
#include <qpdf/Pl_Flate.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFAcroFormDocumentHelper.hh>
#include <qpdf/QPDFAnnotationObjectHelper.hh>
#include <qpdf/QPDFExc.hh>
#include <qpdf/QPDFObjGen.hh>
#include <qpdf/QPDFObjectHandle.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
#include <qpdf/QPDFSystemError.hh>
#include <qpdf/QPDFWriter.hh>
#include <qpdf/QUtil.hh>
