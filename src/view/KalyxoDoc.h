#pragma once

#include "platform/framework/View.h"

namespace kalyxo {

/// The program's one document; everything it shows lives in the data folder and the view.
class CKalyxoDoc : public platform::CDocument {
  public:
    static const platform::CRuntimeClass runtimeClass;
    const platform::CRuntimeClass& GetRuntimeClass() const override { return runtimeClass; }
};

inline constexpr platform::CRuntimeClass CKalyxoDoc::runtimeClass =
    platform::MakeRuntimeClass<CKalyxoDoc>("CKalyxoDoc");

}  // namespace kalyxo
