// Converting a large readDtcs result into C records and releasing it: the generic
// table-driven converters against a hand-written loop that makes the same allocations
// and copies. 50 targets x 200 DTCs x 10 parameters.
#include <benchmark/benchmark.h>

#include <convert.h>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace {

namespace E = Varno::Kel_cpp;

std::vector<std::shared_ptr<E::ReadDtcResult>> bigResult() {
    std::vector<std::shared_ptr<E::ReadDtcResult>> out;
    for (int t = 0; t < 50; ++t) {
        auto r = std::make_shared<E::ReadDtcResult>();
        r->target = L"ECU_" + std::to_wstring(t);
        r->value = 200;
        for (int d = 0; d < 200; ++d) {
            auto dtc = std::make_shared<E::DtcResult>();
            dtc->code = 0x030100 + d;
            dtc->text1 = L"P0" + std::to_wstring(300 + d);
            dtc->text2 = L"Cylinder misfire detected, a description of usual length";
            dtc->text3 = r->target;
            dtc->value1 = 0x2F;
            for (int p = 0; p < 10; ++p) {
                auto param = std::make_shared<E::ParameterResult>();
                param->itemText1 = L"Parameter" + std::to_wstring(p);
                param->itemText2 = L"A readable parameter label";
                param->text1 = std::to_wstring(812 + p);
                param->text2 = L"1/min";
                param->data = {0x03, 0x2C};
                dtc->parameters1.push_back(std::move(param));
            }
            r->dtcs.push_back(std::move(dtc));
        }
        out.push_back(std::move(r));
    }
    return out;
}

// ---- the hand-written reference: the same records, allocations and copies ----------

wchar_t* copyText(const std::wstring& s) {
    auto* out = static_cast<wchar_t*>(std::malloc((s.size() + 1) * sizeof(wchar_t)));
    std::memcpy(out, s.c_str(), (s.size() + 1) * sizeof(wchar_t));
    return out;
}

template <class T>
T* zeroed() {
    return static_cast<T*>(std::calloc(1, sizeof(T)));
}

KelError* handError(const E::KelError* e) {
    if (e == nullptr) {
        return nullptr;
    }
    auto* c = zeroed<KelError>();
    c->code = e->code;
    c->message = copyText(e->message);
    c->details = copyText(e->details);
    c->subCode = e->subCode;
    return c;
}

ParameterResult* handParameter(const E::ParameterResult& p);

ParameterResult** handParameters(const std::vector<std::shared_ptr<E::ParameterResult>>& list,
                                 uint32_t& count) {
    count = static_cast<uint32_t>(list.size());
    if (list.empty()) {
        return nullptr;
    }
    auto** block = static_cast<ParameterResult**>(std::malloc(list.size() * sizeof(void*)));
    for (std::size_t i = 0; i < list.size(); ++i) {
        block[i] = handParameter(*list[i]);
    }
    return block;
}

ParameterResult* handParameter(const E::ParameterResult& p) {
    auto* c = zeroed<ParameterResult>();
    c->itemText1 = copyText(p.itemText1);
    c->itemText2 = copyText(p.itemText2);
    c->itemText3 = copyText(p.itemText3);
    c->itemText4 = copyText(p.itemText4);
    c->text1 = copyText(p.text1);
    c->text2 = copyText(p.text2);
    c->value1 = p.value1;
    c->children = handParameters(p.children, c->childCount);
    c->text3 = copyText(p.text3);
    c->error = handError(p.error.get());
    c->text4 = copyText(p.text4);
    c->value2 = p.value2;
    c->dataLength = static_cast<uint32_t>(p.data.size());
    if (!p.data.empty()) {
        c->data = static_cast<uint8_t*>(std::malloc(p.data.size()));
        std::memcpy(c->data, p.data.data(), p.data.size());
    }
    c->value3 = p.value3;
    c->flag = p.flag;
    c->value4 = p.value4;
    return c;
}

DtcResult* handDtc(const E::DtcResult& d) {
    auto* c = zeroed<DtcResult>();
    c->code = d.code;
    c->text1 = copyText(d.text1);
    c->text2 = copyText(d.text2);
    c->value1 = d.value1;
    c->parameters1 = handParameters(d.parameters1, c->parameterCount1);
    c->parameters2 = handParameters(d.parameters2, c->parameterCount2);
    c->text3 = copyText(d.text3);
    c->text4 = copyText(d.text4);
    c->value2 = d.value2; // no special data groups in this data set
    return c;
}

ReadDtcResult** handResult(const std::vector<std::shared_ptr<E::ReadDtcResult>>& list) {
    auto** block = static_cast<ReadDtcResult**>(std::malloc(list.size() * sizeof(void*)));
    for (std::size_t i = 0; i < list.size(); ++i) {
        const auto& r = *list[i];
        auto* c = zeroed<ReadDtcResult>();
        c->status = r.status;
        c->target = copyText(r.target);
        c->error = handError(r.error.get());
        c->dtcCount = static_cast<uint32_t>(r.dtcs.size());
        c->dtcs = static_cast<DtcResult**>(std::malloc(r.dtcs.size() * sizeof(void*)));
        for (std::size_t k = 0; k < r.dtcs.size(); ++k) {
            c->dtcs[k] = handDtc(*r.dtcs[k]);
        }
        c->value = r.value;
        block[i] = c;
    }
    return block;
}

void handFree(ParameterResult* p) {
    std::free(p->itemText1);
    std::free(p->itemText2);
    std::free(p->itemText3);
    std::free(p->itemText4);
    std::free(p->text1);
    std::free(p->text2);
    for (uint32_t i = 0; i < p->childCount; ++i) {
        handFree(p->children[i]);
    }
    std::free(p->children);
    std::free(p->text3);
    std::free(p->text4);
    std::free(p->data);
    std::free(p);
}

void handFree(ReadDtcResult** block, uint32_t count) {
    for (uint32_t i = 0; i < count; ++i) {
        ReadDtcResult* r = block[i];
        for (uint32_t k = 0; k < r->dtcCount; ++k) {
            DtcResult* d = r->dtcs[k];
            std::free(d->text1);
            std::free(d->text2);
            for (uint32_t p = 0; p < d->parameterCount1; ++p) {
                handFree(d->parameters1[p]);
            }
            std::free(d->parameters1);
            std::free(d->text3);
            std::free(d->text4);
            std::free(d);
        }
        std::free(r->dtcs);
        std::free(r->target);
        std::free(r);
    }
    std::free(block);
}

void Generic(benchmark::State& state) {
    const auto engine = bigResult();
    for (auto _ : state) {
        ReadDtcResult** block = nullptr;
        uint32_t count = 0;
        kel::listToC<ReadDtcResult>(engine, block, count);
        benchmark::DoNotOptimize(block);
        kel::releaseArray(block, count);
    }
}
BENCHMARK(Generic)->Unit(benchmark::kMillisecond);

void HandWritten(benchmark::State& state) {
    const auto engine = bigResult();
    for (auto _ : state) {
        ReadDtcResult** block = handResult(engine);
        benchmark::DoNotOptimize(block);
        handFree(block, static_cast<uint32_t>(engine.size()));
    }
}
BENCHMARK(HandWritten)->Unit(benchmark::kMillisecond);

} // namespace
