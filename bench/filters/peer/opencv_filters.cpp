// The nearest operations of OpenCV. Those on neighbourhoods see the untouched picture, round, and fill the
// border too; none of them works in place.

#include "filters/peer_filters.h"

#include <array>
#include <cmath>
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

namespace coinlet::bench {

namespace {

cv::Matx33f Kernel(float centre, float side, float corner) {
    return {corner, side, corner, side, centre, side, corner, side, corner};
}

cv::Scalar Channels(std::int32_t colour) {
    return {double(colour >> 16 & 0xFF), double(colour >> 8 & 0xFF), double(colour & 0xFF), 0};
}

std::function<void()> Convolution(const cv::Mat& from, cv::Mat& to, const cv::Matx33f& kernel,
                                  double added = 0) {
    return [=] { cv::filter2D(from, to, -1, kernel, {-1, -1}, added); };
}

std::function<void()> Table(const cv::Mat& from, cv::Mat& to, const std::function<double(int)>& value) {
    cv::Mat table(1, 256, CV_8U);
    for (int i = 0; i < 256; ++i)
        table.at<std::uint8_t>(i) = cv::saturate_cast<std::uint8_t>(value(i));
    return [=] { cv::LUT(from, table, to); };
}

/// Mean and variance of all 3 by 3 blocks, and of the four at a pixel's diagonals the one that varies least.
void Kuwahara(const cv::Mat& from, cv::Mat& to) {
    cv::Mat colours, mean, squares, variance;
    cv::cvtColor(from, colours, cv::COLOR_BGRA2BGR);
    cv::boxFilter(colours, mean, CV_32F, {3, 3});
    cv::sqrBoxFilter(colours, squares, CV_32F, {3, 3});
    variance = squares - mean.mul(mean);
    const cv::Rect inside(2, 2, from.cols - 4, from.rows - 4);
    const auto shifted = [&](const cv::Mat& map, int x, int y) { return map(inside + cv::Point(x, y)); };
    cv::Mat bestMean = shifted(mean, -1, -1).clone(), least = shifted(variance, -1, -1).clone();
    // One channel a pixel, so that each one chooses for itself.
    for (const cv::Point place : {cv::Point(1, -1), cv::Point(-1, 1), cv::Point(1, 1)}) {
        const cv::Mat other = shifted(variance, place.x, place.y).clone().reshape(1);
        const cv::Mat otherMean = shifted(mean, place.x, place.y).clone().reshape(1);
        cv::Mat flatLeast = least.reshape(1), flatMean = bestMean.reshape(1);
        const cv::Mat calmer = other < flatLeast;
        otherMean.copyTo(flatMean, calmer);
        cv::min(flatLeast, other, flatLeast);
    }
    cv::Mat bytes, target = to(inside);
    bestMean.convertTo(bytes, CV_8U);
    cv::cvtColor(bytes, target, cv::COLOR_BGR2BGRA);
}

std::function<void()> Opposite(const cv::Mat& from, cv::Mat& to, std::int32_t colour) {
    return [=] {
        const cv::Rect here(0, 0, from.cols - 1, from.rows - 1);
        cv::Mat target = to(here);
        cv::absdiff(from(here), from(here + cv::Point(1, 1)), target);
        cv::add(target, Channels(colour), target);
    };
}

std::function<void()> Scattering(const cv::Mat& from, cv::Mat& to, int reach) {
    cv::Mat places(from.size(), CV_32FC2);
    for (int y = 0; y < from.rows; ++y) {
        for (int x = 0; x < from.cols; ++x)
            places.at<cv::Vec2f>(y, x) = {float(x), float(y)};
    }
    return [=, offsets = cv::Mat(from.size(), CV_32FC2)]() mutable {
        cv::randu(offsets, -reach / 2.0, reach / 2.0);
        cv::add(offsets, places, offsets);
        cv::remap(from, to, offsets, {}, cv::INTER_NEAREST, cv::BORDER_REPLICATE);
    };
}

}  // namespace

std::function<void()> PeerFilter(FilterNumber number, std::int32_t parameter, const PixelArray& from,
                                 PixelArray& to) {
    cv::setNumThreads(1);
    // OpenCV has no pictures that can't be written; this one is only read.
    const cv::Mat source(from.Height(), from.Width(), CV_8UC4,
                         const_cast<std::uint8_t*>(from.Bytes().data()));
    cv::Mat target(to.Height(), to.Width(), CV_8UC4, to.Bytes().data());
    const cv::Matx33f slope(1, 0, -1, 1, 0, -1, 1, 0, -1);
    const double factor = (parameter + 100) / 100.0;
    switch (number) {
        case FilterNumber::Sharpen:
            return Convolution(source, target, Kernel(34 / 18.0F, -2 / 18.0F, -2 / 18.0F));
        case FilterNumber::Blur:
            return Convolution(source, target, Kernel(0, 1 / 8.0F, 1 / 8.0F));
        case FilterNumber::Smooth:
            return Convolution(source, target, Kernel(1 / 5.0F, 1 / 5.0F, 0));
        case FilterNumber::Edge:
            return Convolution(source, target, Kernel(5, -0.5F, -0.5F));
        case FilterNumber::Contour:
            return Convolution(source, target, Kernel(8, -1, -1), 255);
        case FilterNumber::Relief:
            return Convolution(source, target, {1, 0.5F, 0, 0.5F, 0.5F, -0.5F, 0, -0.5F, -1}, 50);
        case FilterNumber::GradientBack:
            return Convolution(source, target, slope, 255);
        case FilterNumber::GradientForward:
            return Convolution(source, target, -slope, 255);
        case FilterNumber::DiagonalBack:
        case FilterNumber::DiagonalForward:
            return Opposite(source, target, parameter);
        case FilterNumber::Erode:
            return [=] { cv::erode(source, target, {}); };
        case FilterNumber::Dilate:
            return [=] { cv::dilate(source, target, {}); };
        case FilterNumber::Connection:
            return [=] {
                cv::erode(source, target, {});
                cv::subtract(source, target, target);
            };
        case FilterNumber::Aquarel:
            return [=]() mutable { Kuwahara(source, target); };
        case FilterNumber::Pixelize:
            return [=, small = cv::Mat()]() mutable {
                const cv::Size blocks((source.cols + parameter - 1) / parameter,
                                      (source.rows + parameter - 1) / parameter);
                cv::resize(source, small, blocks, 0, 0, cv::INTER_AREA);
                cv::resize(small, target, target.size(), 0, 0, cv::INTER_NEAREST);
            };
        case FilterNumber::Negative:
            return [=] { cv::bitwise_not(source, target); };
        case FilterNumber::Grayscale:
            return [=, gray = cv::Mat()]() mutable {
                cv::cvtColor(source, gray, cv::COLOR_BGRA2GRAY);
                cv::cvtColor(gray, target, cv::COLOR_GRAY2BGRA);
            };
        case FilterNumber::Brightness:
            return [=] { source.convertTo(target, -1, factor); };
        case FilterNumber::Contrast:
            return [=] {
                const cv::Scalar means = cv::mean(source);
                const double mean = (means[0] + means[1] + means[2]) / 3;
                source.convertTo(target, -1, factor, mean - factor * mean);
            };
        case FilterNumber::Gamma:
            return Table(source, target,
                         [parameter](int v) { return std::pow(v / 255.0, 100.0 / parameter) * 255; });
        case FilterNumber::Stretch:
            return Table(source, target, [](int v) { return v; });
        case FilterNumber::SwapColours:
            return [=]() mutable {
                const std::array<int, 8> pairs{1, 0, 2, 1, 0, 2, 3, 3};
                cv::mixChannels(&source, 1, &target, 1, pairs.data(), 4);
            };
        case FilterNumber::Saturation:
            return [=] {
                const float away = static_cast<float>(parameter) / 100, shared = -away / 3,
                            own = 1 + away + shared;
                const cv::Matx44f colours(own, shared, shared, 0, shared, own, shared, 0, shared, shared, own,
                                          0, 0, 0, 0, 1);
                cv::transform(source, target, colours);
            };
        case FilterNumber::Defuse:
            return Scattering(source, target, parameter);
        case FilterNumber::AddNoise:
            return [=, noise = cv::Mat(source.size(), CV_16SC4)]() mutable {
                cv::randu(noise, -parameter, parameter + 2);
                cv::add(source, noise, target, {}, CV_8U);
            };
        case FilterNumber::Threshold:
            return [=, mask = cv::Mat()]() mutable {
                cv::inRange(source, cv::Scalar(), Channels(parameter) + cv::Scalar(-1, -1, -1, 255), mask);
                cv::bitwise_not(mask, mask);
                cv::cvtColor(mask, target, cv::COLOR_GRAY2BGRA);
            };
        case FilterNumber::SharpDither:
        case FilterNumber::OrderedDither:
        case FilterNumber::FloydDither:
        case FilterNumber::BurkesDither:
        case FilterNumber::StuckiDither:
            return {};
    }
    return {};
}

}  // namespace coinlet::bench
