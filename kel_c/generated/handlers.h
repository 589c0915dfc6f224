// Generated from the interface description by tools/generate.py. Do not edit.
// One handler class per asynchronous operation, deriving from the engine's callback
// class. Handlers that convert the same results share their kel::Completion base.
#pragma once

#include "async.h"

class IdentifyAllTargetsCallbackHandler final
    : public Varno::Kel_cpp::TarnApi::IdentifyAllTargetsCallback,
      public kel::Completion<::VariantIdentResult, Varno::Kel_cpp::VariantIdentResult> {
public:
    using Function = IdentifyAllTargetsCallbackFunction;
    IdentifyAllTargetsCallbackHandler(Function callback, void* context)
        : Completion(callback, context) {}
    void onCompleted(std::vector<std::shared_ptr<Varno::Kel_cpp::VariantIdentResult>> results,
                     uint64_t callId, std::shared_ptr<Varno::Kel_cpp::KelError> error,
                     bool isFinal) override {
        if (report(results, callId, error, isFinal)) {
            delete this; // the final report ends the call
        }
    }
};

class ReadIdentificationValuesCallbackHandler final
    : public Varno::Kel_cpp::TarnApi::ReadIdentificationValuesCallback,
      public kel::Completion<::ReadDataResult, Varno::Kel_cpp::ReadDataResult> {
public:
    using Function = ReadIdentificationValuesCallbackFunction;
    ReadIdentificationValuesCallbackHandler(Function callback, void* context)
        : Completion(callback, context) {}
    void onCompleted(std::vector<std::shared_ptr<Varno::Kel_cpp::ReadDataResult>> results,
                     uint64_t callId, std::shared_ptr<Varno::Kel_cpp::KelError> error,
                     bool isFinal) override {
        if (report(results, callId, error, isFinal)) {
            delete this; // the final report ends the call
        }
    }
};

class ReadDtcsCallbackHandler final
    : public Varno::Kel_cpp::TarnApi::ReadDtcsCallback,
      public kel::Completion<::ReadDtcResult, Varno::Kel_cpp::ReadDtcResult> {
public:
    using Function = ReadDtcsCallbackFunction;
    ReadDtcsCallbackHandler(Function callback, void* context) : Completion(callback, context) {}
    void onCompleted(std::vector<std::shared_ptr<Varno::Kel_cpp::ReadDtcResult>> results,
                     uint64_t callId, std::shared_ptr<Varno::Kel_cpp::KelError> error,
                     bool isFinal) override {
        if (report(results, callId, error, isFinal)) {
            delete this; // the final report ends the call
        }
    }
};

class ReadSupportedDtcsCallbackHandler final
    : public Varno::Kel_cpp::TarnApi::ReadSupportedDtcsCallback,
      public kel::Completion<::ReadDtcResult, Varno::Kel_cpp::SupportedDtcResult> {
public:
    using Function = ReadSupportedDtcsCallbackFunction;
    ReadSupportedDtcsCallbackHandler(Function callback, void* context)
        : Completion(callback, context) {}
    void onCompleted(std::vector<std::shared_ptr<Varno::Kel_cpp::SupportedDtcResult>> results,
                     uint64_t callId, std::shared_ptr<Varno::Kel_cpp::KelError> error,
                     bool isFinal) override {
        if (report(results, callId, error, isFinal)) {
            delete this; // the final report ends the call
        }
    }
};

class ClearAllDtcsCallbackHandler final
    : public Varno::Kel_cpp::TarnApi::ClearAllDtcsCallback,
      public kel::Completion<::ClearDtcResult, Varno::Kel_cpp::ClearDtcResult> {
public:
    using Function = ClearAllDtcsCallbackFunction;
    ClearAllDtcsCallbackHandler(Function callback, void* context) : Completion(callback, context) {}
    void onCompleted(std::vector<std::shared_ptr<Varno::Kel_cpp::ClearDtcResult>> results,
                     uint64_t callId, std::shared_ptr<Varno::Kel_cpp::KelError> error,
                     bool isFinal) override {
        if (report(results, callId, error, isFinal)) {
            delete this; // the final report ends the call
        }
    }
};

class ReadMeasurementValuesCallbackHandler final
    : public Varno::Kel_cpp::TarnApi::ReadMeasurementValuesCallback,
      public kel::Completion<::ReadDataResult, Varno::Kel_cpp::ReadDataResult> {
public:
    using Function = ReadMeasurementValuesCallbackFunction;
    ReadMeasurementValuesCallbackHandler(Function callback, void* context)
        : Completion(callback, context) {}
    void onCompleted(std::vector<std::shared_ptr<Varno::Kel_cpp::ReadDataResult>> results,
                     uint64_t callId, std::shared_ptr<Varno::Kel_cpp::KelError> error,
                     bool isFinal) override {
        if (report(results, callId, error, isFinal)) {
            delete this; // the final report ends the call
        }
    }
};

class IdentifyTargetsCallbackHandler final
    : public Varno::Kel_cpp::TarnApi::IdentifyTargetsCallback,
      public kel::Completion<::VariantIdentResult, Varno::Kel_cpp::VariantIdentResult> {
public:
    using Function = IdentifyTargetsCallbackFunction;
    IdentifyTargetsCallbackHandler(Function callback, void* context)
        : Completion(callback, context) {}
    void onCompleted(std::vector<std::shared_ptr<Varno::Kel_cpp::VariantIdentResult>> results,
                     uint64_t callId, std::shared_ptr<Varno::Kel_cpp::KelError> error,
                     bool isFinal) override {
        if (report(results, callId, error, isFinal)) {
            delete this; // the final report ends the call
        }
    }
};

class ClearSpecificDtcsCallbackHandler final
    : public Varno::Kel_cpp::TarnApi::ClearSpecificDtcsCallback,
      public kel::Completion<::ClearDtcResult, Varno::Kel_cpp::ClearDtcResult> {
public:
    using Function = ClearSpecificDtcsCallbackFunction;
    ClearSpecificDtcsCallbackHandler(Function callback, void* context)
        : Completion(callback, context) {}
    void onCompleted(std::vector<std::shared_ptr<Varno::Kel_cpp::ClearDtcResult>> results,
                     uint64_t callId, std::shared_ptr<Varno::Kel_cpp::KelError> error,
                     bool isFinal) override {
        if (report(results, callId, error, isFinal)) {
            delete this; // the final report ends the call
        }
    }
};
